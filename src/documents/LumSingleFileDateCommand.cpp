#include "documents/LumSingleFileDateCommand.h"

LumSingleFileDateCommand::LumSingleFileDateCommand(LumSingleFileDoc& document, LumSingleFileDoc::Dates newDates,
                                                   LumSingleFileDoc::Dates oldDates)
    : document_(document), newDates_(newDates), oldDates_(oldDates) {}

void LumSingleFileDateCommand::redo() { document_.applyDates(newDates_); }

void LumSingleFileDateCommand::undo() { document_.applyDates(oldDates_); }
