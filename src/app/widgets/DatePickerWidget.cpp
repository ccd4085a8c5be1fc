// A first, read-only face of the picker: the value as text. The editable
// control with its fields and stepper replaces it.
#include "app/widgets/DatePickerWidget.h"

#include <QHBoxLayout>
#include <QLabel>

#include "datetime/OrbDatePicker.h"
#include "documents/LumLocalized.h"

DatePickerWidget::DatePickerWidget(OrbDatePicker& model, const QString& label, QWidget* parent)
    : QWidget(parent), model_(model) {
  setAccessibleName(label);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  text_ = new QLabel(this);
  layout->addWidget(text_);
  refresh();
}

DatePickerWidget::~DatePickerWidget() = default;

void DatePickerWidget::refresh() {
  if (model_.isMixed()) {
    text_->setText(LumLocalized::text("Multiple Values"));
    return;
  }
  text_->setText(QString::fromStdString(model_.dateTimeStringForTIFF().value_or("")));
  setEnabled(model_.isEnabled());
}
