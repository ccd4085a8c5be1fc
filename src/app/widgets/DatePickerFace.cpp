#include "app/widgets/DatePickerFace.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionFrame>

DatePickerFace::DatePickerFace(QWidget* parent) : QWidget(parent) {}

int DatePickerFace::lineEditHeight(const QWidget* like) {
  QLineEdit probe;
  probe.setFont(like->font());
  return probe.sizeHint().height();
}

int DatePickerFace::frameWidth() const {
  QStyleOptionFrame option;
  option.initFrom(this);
  return style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
}

void DatePickerFace::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QStyleOptionFrame option;
  option.initFrom(this);
  option.rect = rect();
  option.lineWidth = frameWidth();
  option.midLineWidth = 0;
  option.state |= QStyle::State_Sunken;
  const QWidget* focus = QApplication::focusWidget();
  if (focus && isAncestorOf(focus)) option.state |= QStyle::State_HasFocus;
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
}

namespace {

QAccessibleInterface* pickerAccessible(const QString& className, QObject* object) {
  if (className != QLatin1String("DatePickerWidget") || !object || !object->isWidgetType()) return nullptr;
  // Qt's accessibility cache owns the interface and deletes it with the
  // widget.
  return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Grouping);
}

}  // namespace

void installDatePickerAccessibility() {
  static const bool installed = [] {
    QAccessible::installFactory(pickerAccessible);
    return true;
  }();
  (void)installed;
}

DatePickerFieldRow::DatePickerFieldRow(QWidget* parent) : QWidget(parent) {}

void DatePickerFieldRow::setFields(const std::array<QWidget*, kFieldCount>& fields) {
  fields_ = fields;
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  // Every gap is wide enough for the widest separator and a little air.
  const QFontMetrics metrics(font());
  int widest = 0;
  for (int i = 1; i < kFieldCount; ++i) widest = std::max(widest, metrics.horizontalAdvance(separatorBefore(i)));
  layout->setSpacing(widest + 2);
  for (QWidget* field : fields_)
    if (field) layout->addWidget(field);
}

void DatePickerFieldRow::setDrawSeparators(bool draw) {
  drawSeparators_ = draw;
  update();
}

QString DatePickerFieldRow::separatorBefore(int field) {
  switch (field) {
    case 1:
    case 2: return QStringLiteral("-");
    case 4:
    case 5: return QStringLiteral(":");
    case 6: return QStringLiteral(".");
    default: return {};  // before the year; between day and hour
  }
}

void DatePickerFieldRow::paintEvent(QPaintEvent* /*event*/) {
  if (!drawSeparators_) return;
  QPainter painter(this);
  const QWidget* previous = nullptr;
  for (int i = 0; i < kFieldCount; ++i) {
    const QWidget* field = fields_[static_cast<std::size_t>(i)];
    if (!field || field->isHidden()) continue;
    if (previous) {
      const QRect gap(previous->geometry().right() + 1, field->y(), field->x() - previous->geometry().right() - 1,
                      field->height());
      painter.setPen(field->palette().color(field->isEnabled() ? QPalette::Active : QPalette::Disabled,
                                            QPalette::Text));
      painter.drawText(gap, Qt::AlignCenter, separatorBefore(i));
    }
    previous = field;
  }
}
