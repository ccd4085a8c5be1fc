#include "documents/LumDateChangeCommands.h"

#include "documents/LumMultiFileDoc.h"

LumDateSetCommand::LumDateSetCommand(LumMultiFileDoc& document, LumDateSet newSet, LumDateSet oldSet,
                                     const QString& actionName)
    : document_(document), newSet_(std::move(newSet)), oldSet_(std::move(oldSet)) {
  if (!actionName.isEmpty()) setText(actionName);
}

void LumDateSetCommand::redo() { document_.applyDateSet(newSet_); }
void LumDateSetCommand::undo() { document_.applyDateSet(oldSet_); }

LumItemTextsCommand::LumItemTextsCommand(LumMultiFileDoc& document, LumFileItemDoc* item,
                                         DateTargets::Texts newTexts, DateTargets::Texts oldTexts)
    : document_(document), item_(item), newTexts_(std::move(newTexts)), oldTexts_(std::move(oldTexts)) {}

void LumItemTextsCommand::redo() { document_.setItemTexts(item_, newTexts_); }
void LumItemTextsCommand::undo() { document_.setItemTexts(item_, oldTexts_); }
