#pragma once
// The change-by-interval sheet of a single-file window: the mode pop-up,
// the six interval counts, the three date check boxes with their previews,
// OK and Cancel. It draws an LumCTISheet model and forwards every change to
// it; the model computes the previews, decides when OK may be pressed and
// shifts the document's dates on OK. Shown window-modal with open().

#include <QDialog>

#include <array>

#include "documents/DateTargets.h"

class LumCTISheet;
class LumSingleFileDoc;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

class ChangeByIntervalSheet : public QDialog {
  Q_OBJECT

 public:
  ChangeByIntervalSheet(LumCTISheet& model, QWidget* parent);
  ~ChangeByIntervalSheet() override;

  // Hands the document's dates to the model and shows the sheet; OK shifts
  // that document's dates.
  void openFor(LumSingleFileDoc& document);

  QSpinBox& field(int index) const { return *fields_[static_cast<std::size_t>(index)]; }
  QCheckBox& target(DateTargets::Index which) const { return *targets_[which]; }
  QLabel& preview(DateTargets::Index which) const { return *previews_[which]; }
  QPushButton& okButton() const { return *ok_; }

  // OK or Cancel (and Escape) both end the sheet through here; the model
  // applies on OK and clears its fields either way.
  void done(int result) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void buildModeAndFields(QVBoxLayout& column);
  void buildTargets(QVBoxLayout& column);
  void buildButtons(QVBoxLayout& column);
  // Shows the model's fields, targets, previews and OK state.
  void showModel();
  void showPreviews();

  LumCTISheet& model_;
  LumSingleFileDoc* document_ = nullptr;
  QComboBox* mode_ = nullptr;
  std::array<QSpinBox*, 6> fields_{};
  std::array<QCheckBox*, DateTargets::kCount> targets_{};
  std::array<QLabel*, DateTargets::kCount> previews_{};
  QPushButton* ok_ = nullptr;
  QPushButton* cancel_ = nullptr;
  bool showing_ = false;  // the widgets are being set from the model
};
