#pragma once
// The real dialogs and alerts behind Prompts: Qt's own file dialog (so that
// files and folders can be chosen together) with the one-window choice
// below it, and application-modal message boxes.

#include "app/Prompts.h"

class DialogPrompts : public Prompts {
 public:
  std::optional<OpenRequest> chooseFilesToOpen(QWidget* parent, bool separateWindowsPreselected) override;
  OpenStyle askHowToOpen(std::size_t count) override;
  void showCriticalAlert(QWidget* parent, const Alert& alert) override;
};
