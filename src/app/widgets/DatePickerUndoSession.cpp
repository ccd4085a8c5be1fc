#include "app/widgets/DatePickerUndoSession.h"

#include <utility>

void DatePickerUndoSession::registerUndo(OrbDatePicker& /*target*/, std::function<void()> action) {
  // While undoing, the reverse of what is undone is the redo; a new change
  // made by the user makes the old redo meaningless.
  switch (mode_) {
    case Mode::undoing: redo_.push_back(std::move(action)); break;
    case Mode::redoing: undo_.push_back(std::move(action)); break;
    case Mode::normal:
      undo_.push_back(std::move(action));
      redo_.clear();
      break;
  }
}

void DatePickerUndoSession::removeAllActionsWithTarget(OrbDatePicker& /*target*/) {
  undo_.clear();
  redo_.clear();
}

void DatePickerUndoSession::run(std::vector<std::function<void()>>& stack, Mode mode) {
  if (stack.empty()) return;
  // Taken off first: running it may register on the other stack.
  const std::function<void()> action = std::move(stack.back());
  stack.pop_back();
  mode_ = mode;
  action();
  mode_ = Mode::normal;
}
