#include "app/multi/ChangeControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QVBoxLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>

#include "documents/DateTargets.h"
#include "documents/LumLocalized.h"
#include "documents/LumMultiFileDoc.h"

namespace {

constexpr std::array<const char*, 6> kObjectNames{"yearField",   "monthField",  "dayField",
                                                  "hourField",   "minuteField", "secondField"};
constexpr std::array<const char*, 6> kIntervalLabels{"Years", "Months", "Days", "Hours", "Minutes", "Seconds"};
constexpr std::array<const char*, 6> kTimeLabels{"Year", "Month", "Day", "Hour", "Minute", "Second"};
constexpr std::array<const char*, 3> kTargetNames{"originalCheck", "digitizedCheck", "editedCheck"};

void setAccessibleLabel(QWidget* widget, const QString& label) {
  widget->setAccessibleName(label);
  widget->setToolTip(label);
}

}  // namespace

ChangeControls::ChangeControls(LumMultiFileDoc& document, QWidget* parent) : QWidget(parent), document_(document) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  buildModeAndFields();
  buildTargetsAndApply();
  connect(&document_, &LumMultiFileDoc::fieldsChanged, this, &ChangeControls::showFields);
  connect(&document_, &LumMultiFileDoc::applyStateChanged, this, &ChangeControls::showApplyState);
  showFields();
  const LumMultiFileDoc::ApplyButtonState state = document_.validateApllyButton();
  showApplyState(state.enabled, state.warningShown);
}

void ChangeControls::buildModeAndFields() {
  auto* row = new QHBoxLayout;
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
  auto* modeLabel = new QLabel(tr("Mode:"), this);
  mode_ = new QComboBox(this);
  mode_->setObjectName("modePopup");
  mode_->setAccessibleName(tr("Mode"));
  for (const char* word : kActionModeWords) mode_->addItem(LumLocalized::text(word));
  mode_->setCurrentIndex(static_cast<int>(document_.actionMode()));
  modeLabel->setBuddy(mode_);
  connect(mode_, &QComboBox::currentIndexChanged, this,
          [this](int index) { document_.changeActionMode(static_cast<LumActionMode>(index)); });
  row->addWidget(modeLabel);
  row->addWidget(mode_);

  for (std::size_t i = 0; i < fields_.size(); ++i) {
    labels_[i] = new QLabel(this);
    fields_[i] = new QSpinBox(this);
    fields_[i]->setObjectName(kObjectNames[i]);
    fields_[i]->setButtonSymbols(QAbstractSpinBox::NoButtons);
    fields_[i]->setAlignment(Qt::AlignRight);
    labels_[i]->setBuddy(fields_[i]);
    const auto field = static_cast<LumMultiFileDoc::Field>(i);
    connect(fields_[i], &QSpinBox::valueChanged, this, [this, field](int value) {
      if (document_.fieldValue(field) != value) document_.setFieldValue(field, value);
    });
    connect(fields_[i], &QSpinBox::editingFinished, this, [this, field] {
      if (document_.actionMode() == LumActionMode::SetTime)
        document_.endSetTimeFieldEditing(field, fields_[static_cast<std::size_t>(field)]->value());
    });
    row->addWidget(labels_[i]);
    row->addWidget(fields_[i]);
  }
  row->addStretch(1);
}

void ChangeControls::buildTargetsAndApply() {
  auto* row = new QHBoxLayout;
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    const QString label = LumLocalized::text(std::string(t.column).c_str());
    auto* box = new QCheckBox(label, this);
    box->setObjectName(kTargetNames[static_cast<std::size_t>(t.index)]);
    box->setAccessibleName(label);
    box->setChecked(document_._editTargetMask() & t.maskBit);
    connect(box, &QCheckBox::toggled, this, &ChangeControls::targetsToggled);
    targets_[static_cast<std::size_t>(t.index)] = box;
    row->addWidget(box);
  }
  row->addStretch(1);
  cautionIcon_ = new QLabel(this);
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
  cautionIcon_->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(icon, icon));
  warning_ = new QLabel(LumLocalized::text("A date would leave the range from 0001 to 9999."), this);
  warning_->setObjectName("rangeWarning");
  setAccessibleLabel(cautionIcon_, warning_->text());
  warning_->setAccessibleName(warning_->text());
  apply_ = new QPushButton(LumLocalized::text("Apply"), this);
  apply_->setObjectName("applyButton");
  apply_->setAccessibleName(apply_->text());
  apply_->setDefault(true);
  connect(apply_, &QPushButton::clicked, this, &ChangeControls::apply);
  row->addWidget(cautionIcon_);
  row->addWidget(warning_);
  row->addWidget(apply_);
}

void ChangeControls::showFields() {
  const bool setTime = document_.actionMode() == LumActionMode::SetTime;
  const LumFieldLimits limits = document_._changeNumberFormatter();
  if (mode_->currentIndex() != static_cast<int>(document_.actionMode())) {
    const QSignalBlocker blocker(mode_);
    mode_->setCurrentIndex(static_cast<int>(document_.actionMode()));
  }
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const QString label = LumLocalized::text((setTime ? kTimeLabels : kIntervalLabels)[i]);
    labels_[i]->setText(label + ":");
    fields_[i]->setAccessibleName(label);
    const QSignalBlocker blocker(fields_[i]);
    fields_[i]->setRange(static_cast<int>(limits[i].minimum), static_cast<int>(limits[i].maximum));
    const long value = document_.fieldValue(static_cast<LumMultiFileDoc::Field>(i));
    if (fields_[i]->value() != value) fields_[i]->setValue(static_cast<int>(value));
  }
}

void ChangeControls::showApplyState(bool enabled, bool warningShown) {
  apply_->setEnabled(enabled);
  cautionIcon_->setVisible(warningShown);
  warning_->setVisible(warningShown);
}

void ChangeControls::targetsToggled() {
  unsigned mask = 0;
  for (const DateTargets::Target& t : DateTargets::kTargets)
    if (targets_[static_cast<std::size_t>(t.index)]->isChecked()) mask |= t.maskBit;
  document_.setEditTargetMask(mask);
}

void ChangeControls::apply() {
  document_.applyToAllFiles();
  fields_.front()->setFocus();
  fields_.front()->selectAll();
}
