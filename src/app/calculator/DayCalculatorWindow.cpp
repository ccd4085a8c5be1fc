#include "app/calculator/DayCalculatorWindow.h"

#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QMouseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWindow>

#include <string>

#include "app/widgets/DatePickerWidget.h"
#include "documents/LumLocalized.h"

namespace {

// Year, month and day only: the interval is always a whole number of days.
constexpr std::array<bool, OrbDatePicker::kFieldCount> kDateFields = {true, true, true, false, false, false, false};

}  // namespace

DayCalculatorWindow::DayCalculatorWindow(QWidget* parent, const Instant& now)
    : QWidget(parent, Qt::Window),
      calculator_(now),
      model1_(OrbDatePicker::kStyleDateOnly, kDateFields),
      model2_(OrbDatePicker::kStyleDateOnly, kDateFields) {
  setObjectName(QStringLiteral("LumDayCalculator"));
  setWindowTitle(LumLocalized::text("Day Count Calculator"));
  setAccessibleName(windowTitle());

  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
  form->addRow(tr("First date:"), picker1_ = makePicker(model1_, tr("First date")));
  form->addRow(tr("Second date:"), picker2_ = makePicker(model2_, tr("Second date")));
  picker1_->setObjectName(QStringLiteral("DC_picker1"));
  picker2_->setObjectName(QStringLiteral("DC_picker2"));

  result_ = new QLabel(this);
  result_->setObjectName(QStringLiteral("DC_days"));
  result_->setAlignment(Qt::AlignCenter);
  result_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  QFont big = result_->font();
  big.setPointSizeF(big.pointSizeF() * 1.5);
  big.setBold(true);
  result_->setFont(big);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(20, 16, 20, 16);
  layout->setSpacing(12);
  auto* centred = new QHBoxLayout;
  centred->addStretch();
  centred->addLayout(form);
  centred->addStretch();
  layout->addLayout(centred);
  layout->addWidget(result_);
  layout->setSizeConstraint(QLayout::SetFixedSize);  // a fixed size that follows the font
  setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 36);

  // Both pickers start at today, as a UTC date.
  model1_.setDateValue(calculator_.date1());
  model2_.setDateValue(calculator_.date2());
  picker1_->refresh();
  picker2_->refresh();
  calculate();
}

DayCalculatorWindow::~DayCalculatorWindow() = default;

DatePickerWidget* DayCalculatorWindow::makePicker(OrbDatePicker& model, const QString& label) {
  auto* picker = new DatePickerWidget(model, label, this);
  connect(picker, &DatePickerWidget::edited, this, &DayCalculatorWindow::calculate);
  return picker;
}

QString DayCalculatorWindow::resultText(std::uint64_t days) {
  const std::string key(LumDayCalculator::formatKey(days));
  return LumLocalized::format(key.c_str(), QLocale().toString(static_cast<qulonglong>(days)));
}

QString DayCalculatorWindow::result() const { return result_->text(); }

void DayCalculatorWindow::calculate() {
  // A cleared field leaves a picker without a date; the model keeps the
  // last whole one.
  if (const auto date = model1_.dateValue()) calculator_.setDate1(*date);
  if (const auto date = model2_.dateValue()) calculator_.setDate2(*date);
  result_->setText(resultText(LumDayCalculator::dayCount(calculator_.date1(), calculator_.date2())));
  result_->setAccessibleName(result_->text());
}

void DayCalculatorWindow::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && windowHandle() && windowHandle()->startSystemMove()) {
    event->accept();
    return;
  }
  QWidget::mousePressEvent(event);
}
