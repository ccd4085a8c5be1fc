#pragma once
// The undo history of one editing session of a date picker: the picker
// records each field change here while the user types or steps, Ctrl+Z in
// the field walks it back, and the picker empties it when editing ends.
// Each action registers its own reverse when it runs, so undo and redo
// alternate.

#include <functional>
#include <vector>

#include "datetime/OrbDatePicker.h"

class DatePickerUndoSession final : public OrbDatePicker::UndoManager {
 public:
  // One session serves one picker, so the target is not looked at.
  void registerUndo(OrbDatePicker& target, std::function<void()> action) override;
  void removeAllActionsWithTarget(OrbDatePicker& target) override;

  bool canUndo() const { return !undo_.empty(); }
  bool canRedo() const { return !redo_.empty(); }
  void undo() { run(undo_, Mode::undoing); }
  void redo() { run(redo_, Mode::redoing); }

 private:
  enum class Mode { normal, undoing, redoing };
  void run(std::vector<std::function<void()>>& stack, Mode mode);

  std::vector<std::function<void()>> undo_;
  std::vector<std::function<void()>> redo_;
  Mode mode_ = Mode::normal;
};
