#pragma once
// The row above the multi-file table: the mode pop-up, the six fields, the
// three date check boxes, the Apply button and the range warning. It binds
// them to the document: what the user sets goes to the document, and the
// fields, their limits, the button and the warning follow its signals.

#include <QWidget>

#include <array>

class LumMultiFileDoc;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

class ChangeControls : public QWidget {
  Q_OBJECT

 public:
  explicit ChangeControls(LumMultiFileDoc& document, QWidget* parent = nullptr);

  QSpinBox& field(int index) const { return *fields_[static_cast<std::size_t>(index)]; }

 private:
  void buildModeAndFields();
  void buildTargetsAndApply();
  void showFields();
  void showApplyState(bool enabled, bool warningShown);
  void targetsToggled();
  void apply();

  LumMultiFileDoc& document_;
  QComboBox* mode_ = nullptr;
  std::array<QLabel*, 6> labels_{};
  std::array<QSpinBox*, 6> fields_{};
  std::array<QCheckBox*, 3> targets_{};
  QPushButton* apply_ = nullptr;
  QLabel* cautionIcon_ = nullptr;
  QLabel* warning_ = nullptr;
};
