#pragma once
// Answers the program's dialogs and alerts in window tests: each question
// takes the answer the test put in place, and every alert is recorded.

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "app/Prompts.h"

class FakePrompts : public Prompts {
 public:
  std::optional<OpenRequest> nextOpenRequest;  // taken by the next open dialog
  std::vector<std::size_t> askedCounts;  // one per "how to open" question
  std::vector<Alert> alerts;
  std::function<void()> onAlert;  // runs when an alert comes up

  std::optional<OpenRequest> chooseFilesToOpen(QWidget*, bool) override { return std::exchange(nextOpenRequest, {}); }
  OpenStyle askHowToOpen(std::size_t count) override {  // always one window
    askedCounts.push_back(count);
    return OpenStyle::OneWindow;
  }
  void showCriticalAlert(QWidget*, const Alert& alert) override {
    alerts.push_back(alert);
    if (onAlert) onAlert();
  }
};
