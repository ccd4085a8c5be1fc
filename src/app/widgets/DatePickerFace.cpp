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
  for (QWidget* field : fields_)
    if (field) layout->addWidget(field);
  // When "Multiple Values" is the wider page (date only), the fields keep
  // their gaps and start at the left, as text in a text box does.
  layout->addStretch();
  updateSpacing();
}

void DatePickerFieldRow::updateSpacing() {
  // The fields' own side margins give the separators their air.
  const QFontMetrics metrics(font());
  int widest = 0;
  for (int i = 1; i < kFieldCount; ++i) widest = std::max(widest, metrics.horizontalAdvance(separatorBefore(i)));
  if (layout()) layout()->setSpacing(widest);
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

int DatePickerFieldRow::textEdge(const QWidget* field, bool right) {
  const auto* editor = qobject_cast<const QLineEdit*>(field);
  const QRect box = field->geometry();
  if (!editor || editor->text().isEmpty()) return right ? box.right() + 1 : box.left();
  const QFontMetrics metrics = editor->fontMetrics();
  // A line edit centres its text together with room for the cursor after
  // it, so the text sits a little left of the middle.
  const int centre = box.center().x() - 1;
  const int half = metrics.horizontalAdvance(editor->text()) / 2;
  return right ? centre + half + 1 : centre - half;
}

void DatePickerFieldRow::paintEvent(QPaintEvent* /*event*/) {
  if (!drawSeparators_) return;
  QPainter painter(this);
  const QWidget* previous = nullptr;
  for (int i = 0; i < kFieldCount; ++i) {
    const QWidget* field = fields_[static_cast<std::size_t>(i)];
    if (!field || field->isHidden()) continue;
    if (previous) {
      // Centred between the digits rather than between the editors, whose
      // text sits in the middle of each.
      const QRect gap(textEdge(previous, true), field->y(), textEdge(field, false) - textEdge(previous, true),
                      field->height());
      painter.setPen(field->palette().color(field->isEnabled() ? QPalette::Active : QPalette::Disabled,
                                            QPalette::Text));
      painter.drawText(gap, Qt::AlignCenter, separatorBefore(i));
    }
    previous = field;
  }
}
