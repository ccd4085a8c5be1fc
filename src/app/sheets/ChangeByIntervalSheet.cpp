#include "app/sheets/ChangeByIntervalSheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "documents/LumCTISheet.h"
#include "documents/LumDateLimits.h"
#include "documents/LumLocalized.h"
#include "documents/LumSingleFileDoc.h"

namespace {

constexpr std::array<const char*, 6> kFieldLabels{"Years", "Months", "Days", "Hours", "Minutes", "Seconds"};
constexpr std::array<const char*, 6> kFieldNames{"yearsField", "monthsField", "daysField",
                                                 "hoursField", "minutesField", "secondsField"};
constexpr std::array<const char*, DateTargets::kCount> kTargetNames{"originalCheck", "digitizedCheck", "editedCheck"};
constexpr std::array<const char*, DateTargets::kCount> kPreviewNames{"originalPreview", "digitizedPreview",
                                                                     "editedPreview"};

// Room for "yyyy:MM:dd HH:mm:ss" with a sign and the out-of-range mark.
constexpr const char* kWidestPreview = "\xE2\x9D\x97-0000:00:00 00:00:00";

}  // namespace

ChangeByIntervalSheet::ChangeByIntervalSheet(LumCTISheet& model, QWidget* parent) : QDialog(parent), model_(model) {
  setObjectName("changeByIntervalSheet");
  setWindowTitle(tr("Change by Interval"));
  setWindowModality(Qt::WindowModal);
  auto* column = new QVBoxLayout(this);
  buildModeAndFields(*column);
  buildTargets(*column);
  buildButtons(*column);
  showModel();
}

ChangeByIntervalSheet::~ChangeByIntervalSheet() = default;

void ChangeByIntervalSheet::buildModeAndFields(QVBoxLayout& column) {
  auto* grid = new QGridLayout;
  auto* modeLabel = new QLabel(tr("Mode:"), this);
  mode_ = new QComboBox(this);
  mode_->setObjectName("modePopup");
  mode_->setAccessibleName(tr("Mode"));
  mode_->addItem(LumLocalized::text("Backward"), LumCTISheet::kBackwardTag);
  mode_->addItem(LumLocalized::text("Forward"), LumCTISheet::kForwardTag);
  modeLabel->setBuddy(mode_);
  connect(mode_, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (showing_) return;
    model_.selectChangeDateMode(mode_->itemData(index).toInt());
    showPreviews();
  });
  grid->addWidget(modeLabel, 0, 0);
  grid->addWidget(mode_, 0, 1, 1, 3, Qt::AlignLeft);
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const QString label = LumLocalized::text(kFieldLabels[i]);
    auto* name = new QLabel(label + QLatin1Char(':'), this);
    auto* field = new QSpinBox(this);
    field->setObjectName(kFieldNames[i]);
    field->setAccessibleName(label);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setAlignment(Qt::AlignRight);
    const LumFieldLimit limit = LumDateLimits::kIntervalFieldLimits[i];
    field->setRange(static_cast<int>(limit.minimum), static_cast<int>(limit.maximum));
    name->setBuddy(field);
    const auto which = static_cast<LumCTISheet::Field>(i);
    connect(field, &QSpinBox::valueChanged, this, [this, which](int value) {
      if (showing_) return;
      model_.controlTextDidChange(which, value);
      showPreviews();
    });
    const int row = 1 + static_cast<int>(i) / 3;
    const int col = 2 * (static_cast<int>(i) % 3);
    grid->addWidget(name, row, col, Qt::AlignRight);
    grid->addWidget(field, row, col + 1);
    fields_[i] = field;
  }
  column.addLayout(grid);
}

void ChangeByIntervalSheet::buildTargets(QVBoxLayout& column) {
  auto* grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  const int previewWidth = fontMetrics().horizontalAdvance(QString::fromUtf8(kWidestPreview)) + 8;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    const QString label = LumLocalized::text(std::string(t.column).c_str());
    auto* box = new QCheckBox(label, this);
    box->setObjectName(kTargetNames[t.index]);
    box->setAccessibleName(label);
    connect(box, &QCheckBox::toggled, this, [this, which = t.index](bool on) {
      if (showing_) return;
      model_.selectTarget(which, on);
      showPreviews();
    });
    auto* preview = new QLabel(this);
    preview->setObjectName(kPreviewNames[t.index]);
    preview->setAccessibleName(label);
    preview->setMinimumWidth(previewWidth);
    preview->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const int row = static_cast<int>(t.index);
    grid->addWidget(box, row, 0);
    grid->addWidget(preview, row, 1);
    targets_[t.index] = box;
    previews_[t.index] = preview;
  }
  column.addSpacing(6);
  column.addLayout(grid);
}

void ChangeByIntervalSheet::buildButtons(QVBoxLayout& column) {
  auto* row = new QHBoxLayout;
  cancel_ = new QPushButton(LumLocalized::text("Cancel"), this);
  cancel_->setObjectName("cancelButton");
  cancel_->setAccessibleName(cancel_->text());
  ok_ = new QPushButton(LumLocalized::text("OK"), this);
  ok_->setObjectName("okButton");
  ok_->setAccessibleName(ok_->text());
  ok_->setDefault(true);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  row->addStretch(1);
  row->addWidget(cancel_);
  row->addWidget(ok_);
  column.addStretch(1);
  column.addLayout(row);
}

void ChangeByIntervalSheet::openFor(LumSingleFileDoc& document) {
  document_ = &document;
  document.showChangeByTimeIntervalSheet(model_);
  showModel();
  open();
  fields_[model_.focusedField()]->setFocus();
  fields_[model_.focusedField()]->selectAll();
}

void ChangeByIntervalSheet::done(int result) {
  // Enter with OK disabled must not apply what the model refuses.
  if (result == Accepted && !model_.validateOKButton()) return;
  model_.closeCTISheet(result == Accepted ? LumCTISheet::kOKTag : 0, document_);
  document_ = nullptr;
  showModel();
  QDialog::done(result);
}

void ChangeByIntervalSheet::showModel() {
  showing_ = true;
  mode_->setCurrentIndex(mode_->findData(model_.isForward() ? LumCTISheet::kForwardTag : LumCTISheet::kBackwardTag));
  for (std::size_t i = 0; i < fields_.size(); ++i)
    fields_[i]->setValue(static_cast<int>(model_.fieldValue(static_cast<LumCTISheet::Field>(i))));
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    targets_[t.index]->setChecked(model_.isTarget(t.index));
    targets_[t.index]->setEnabled(model_.dates()[t.index].has_value());
  }
  showing_ = false;
  showPreviews();
}

void ChangeByIntervalSheet::showPreviews() {
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    QLabel* label = previews_[t.index];
    const LumCTISheet::Preview& preview = model_.preview(t.index);
    const QString text = QString::fromStdString(preview.text);
    label->setToolTip(text);
    label->setAccessibleDescription(text);
    label->setText(label->fontMetrics().elidedText(text, Qt::ElideRight, label->width()));
    QPalette palette = this->palette();
    if (preview.outOfRange) palette.setColor(QPalette::WindowText, Qt::red);
    label->setPalette(palette);
  }
  ok_->setEnabled(model_.validateOKButton());
}

void ChangeByIntervalSheet::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  showPreviews();  // elided again for the new width
}
