#pragma once
// One undoable change of the single-file document's three dates. It holds
// both states, so undo and redo simply exchange them; pushing it onto the
// document's stack puts the new values in place.

#include <QUndoCommand>

#include "documents/LumSingleFileDoc.h"

class LumSingleFileDateCommand : public QUndoCommand {
 public:
  LumSingleFileDateCommand(LumSingleFileDoc& document, LumSingleFileDoc::Dates newDates,
                           LumSingleFileDoc::Dates oldDates);
  void redo() override;
  void undo() override;

 private:
  LumSingleFileDoc& document_;
  LumSingleFileDoc::Dates newDates_;
  LumSingleFileDoc::Dates oldDates_;
};
