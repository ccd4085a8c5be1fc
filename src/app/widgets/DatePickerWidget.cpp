// The picker's construction, layout and drawing of its model; what the
// user does is answered in DatePickerWidgetInput.cpp.
#include "app/widgets/DatePickerWidget.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStackedLayout>

#include <algorithm>

#include "app/widgets/DatePickerFace.h"
#include "app/widgets/DatePickerStepper.h"
#include "app/widgets/DatePickerUndoSession.h"
#include "documents/LumLocalized.h"

using Control = OrbDatePicker::Control;

namespace {

constexpr std::array<const char*, OrbDatePicker::kFieldCount> kFieldNames = {
    QT_TRANSLATE_NOOP("DatePickerWidget", "Year"),   QT_TRANSLATE_NOOP("DatePickerWidget", "Month"),
    QT_TRANSLATE_NOOP("DatePickerWidget", "Day"),    QT_TRANSLATE_NOOP("DatePickerWidget", "Hour"),
    QT_TRANSLATE_NOOP("DatePickerWidget", "Minute"), QT_TRANSLATE_NOOP("DatePickerWidget", "Second"),
    QT_TRANSLATE_NOOP("DatePickerWidget", "Millisecond")};

std::size_t indexOf(Control field) { return static_cast<std::size_t>(field); }

// A field's text as shown when nobody types in it: leading zeros to the
// field's width ("7" as "07", "1" as "0001").
QString padded(const std::string& text, int digits) {
  QString shown = QString::fromStdString(text);
  const bool allDigits =
      !shown.isEmpty() && std::all_of(shown.begin(), shown.end(), [](QChar c) { return c.isDigit(); });
  if (allDigits && shown.size() < digits) shown.prepend(QString(digits - shown.size(), u'0'));
  return shown;
}

}  // namespace

bool DatePickerWidget::inStyle(Control field) const {
  switch (model_.style()) {
    case OrbDatePicker::kStyleMilliseconds: return true;
    case OrbDatePicker::kStyleDateOnly:
      return field == Control::yearField || field == Control::monthField || field == Control::dayField;
    default: return field != Control::subSecondField;
  }
}

DatePickerWidget::DatePickerWidget(OrbDatePicker& model, const QString& label, QWidget* parent)
    : QWidget(parent), model_(model), undo_(std::make_unique<DatePickerUndoSession>()) {
  installDatePickerAccessibility();
  setAccessibleName(label);
  model_.setUndoManager(undo_.get());
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  layout->addWidget(buildFace());
  stepper_ = new DatePickerStepper(this);
  connect(stepper_, &DatePickerStepper::stepped, this, &DatePickerWidget::onStepped);
  layout->addWidget(stepper_);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  setTabChain();
  updateMetrics();
  refresh();
}

DatePickerWidget::~DatePickerWidget() {
  // Deleting the children later moves the focus, and the fields would
  // report it to a picker that is no longer whole.
  for (PickerFieldEditor* field : fields_)
    if (field) field->detachHost();
  disconnect(stepper_, nullptr, this, nullptr);
  // The model may outlive this control; its undo history goes with it.
  model_.setUndoManager(nullptr);
}

QWidget* DatePickerWidget::buildFace() {
  auto* face = new DatePickerFace(this);
  face_ = face;
  auto* frame = new QHBoxLayout(face);
  // The fields and the "Multiple Values" text take turns in the same
  // place; the face keeps the size of the larger, so nothing moves.
  auto* stack = new QWidget(face);
  pages_ = new QStackedLayout(stack);
  fieldRow_ = new DatePickerFieldRow(stack);
  buildFields();
  mixedText_ = new QLabel(LumLocalized::text("Multiple Values"), stack);
  mixedText_->setAlignment(Qt::AlignCenter);
  mixedText_->setForegroundRole(QPalette::PlaceholderText);
  pages_->addWidget(fieldRow_);
  pages_->addWidget(mixedText_);
  frame->addWidget(stack);
  return face;
}

void DatePickerWidget::updateMetrics() {
  // As tall as a line edit in the same font, so the picker lines up with
  // the text boxes beside it; the font usually arrives with the parent.
  const int height = DatePickerFace::lineEditHeight(this);
  const int rim = face_->frameWidth();
  face_->layout()->setContentsMargins(rim + 2, rim, rim + 2, rim);
  face_->setFixedHeight(height);
  stepper_->setHeight(height);
  fieldRow_->updateSpacing();
}

void DatePickerWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) updateMetrics();
}

void DatePickerWidget::buildFields() {
  std::array<QWidget*, OrbDatePicker::kFieldCount> row{};
  for (std::size_t i = 0; i < OrbDatePicker::kFieldCount; ++i) {
    const auto field = static_cast<Control>(i);
    if (!model_.field(field).present) continue;
    auto* editor = new PickerFieldEditor(*this, field, model_.field(field).integerDigits, fieldRow_);
    editor->setAccessibleName(tr(kFieldNames[i]));
    connect(editor, &QLineEdit::textChanged, this, [this, field](const QString& text) { onTextChanged(field, text); });
    fields_[i] = editor;
    row[i] = editor;
  }
  fieldRow_->setFields(row);
}

void DatePickerWidget::setTabChain() {
  QWidget* previous = nullptr;
  for (Control control : model_.keyViewChain()) {
    QWidget* next = control == Control::stepper ? static_cast<QWidget*>(stepper_) : fields_[indexOf(control)];
    if (!next) continue;
    if (previous)
      QWidget::setTabOrder(previous, next);
    else
      setFocusProxy(next);  // focusing the picker focuses its first field
    previous = next;
  }
}

PickerFieldEditor* DatePickerWidget::fieldEditor(Control field) const {
  return field == Control::stepper ? nullptr : fields_[indexOf(field)];
}

// --- Drawing the model -------------------------------------------------------------

void DatePickerWidget::refresh() {
  const QScopedValueRollback guard(refreshing_, true);
  pages_->setCurrentWidget(model_.isMixed() ? static_cast<QWidget*>(mixedText_) : fieldRow_);
  for (std::size_t i = 0; i < OrbDatePicker::kFieldCount; ++i) refreshField(static_cast<Control>(i));
  fieldRow_->setDrawSeparators(model_.drawColon());
  // A disabled picker keeps its stepper only while it shows "Multiple
  // Values": there a click means "now".
  stepper_->setEnabled(model_.isStepperEnabled() && (model_.isEnabled() || model_.isMixed()));
  face_->update();
}

void DatePickerWidget::refreshField(Control control) {
  PickerFieldEditor* editor = fieldEditor(control);
  if (!editor || typing_ == control) return;
  const OrbDatePicker::Field& field = model_.field(control);
  // While mixed the row is not on show, but it keeps the layout of the
  // picker's style, so the control keeps its width when a value comes.
  editor->setVisible(model_.isMixed() ? inStyle(control) : !field.hidden);
  editor->setEnabled(field.enabled);
  // The field being typed in keeps the text as typed ("1", not "01") as
  // long as it means the model's value, so the next digit goes after it.
  bool typedOk = false;
  const long typed = editor->text().toLong(&typedOk);
  const bool keepTyped = editor->hasFocus() && typedOk && !field.text.empty() && typed == field.integerValue();
  const QString text = padded(field.text, field.integerDigits);
  if (!keepTyped && editor->text() != text) editor->setText(text);
  lastText_[indexOf(control)] = editor->text();
}

DatePickerWidget::Shown DatePickerWidget::shown() const {
  Shown now{model_.dateTimeValues(), {}, model_.isMixed(), model_.isEnabled()};
  for (std::size_t i = 0; i < OrbDatePicker::kFieldCount; ++i)
    now.texts[i] = model_.field(static_cast<Control>(i)).text;
  return now;
}

void DatePickerWidget::finishEdit(const Shown& before) {
  if (shown() != before) emit edited();
}
