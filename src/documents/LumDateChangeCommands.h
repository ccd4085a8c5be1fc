#pragma once
// The undoable date changes of the multi-file document. Each command holds
// both states, so undo and redo simply exchange them.

#include <QUndoCommand>

#include "documents/DateTargets.h"
#include "documents/LumDateSet.h"

class LumMultiFileDoc;
class LumFileItemDoc;

// Apply, restore: a whole date set against the set it replaced.
class LumDateSetCommand : public QUndoCommand {
 public:
  LumDateSetCommand(LumMultiFileDoc& document, LumDateSet newSet, LumDateSet oldSet, const QString& actionName);
  void redo() override;
  void undo() override;

 private:
  LumMultiFileDoc& document_;
  LumDateSet newSet_;
  LumDateSet oldSet_;
};

// A typed change: the three texts of one file against the texts before.
class LumItemTextsCommand : public QUndoCommand {
 public:
  LumItemTextsCommand(LumMultiFileDoc& document, LumFileItemDoc* item, DateTargets::Texts newTexts,
                      DateTargets::Texts oldTexts);
  void redo() override;
  void undo() override;

 private:
  LumMultiFileDoc& document_;
  LumFileItemDoc* item_;
  DateTargets::Texts newTexts_;
  DateTargets::Texts oldTexts_;
};
