#include "app/widgets/PickerFieldEditor.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>

PickerFieldEditor::PickerFieldEditor(PickerFieldHost& host, OrbDatePicker::Control field, int digits,
                                     QWidget* parent)
    : QLineEdit(parent), host_(&host), field_(field), digits_(digits) {
  // The picker draws one frame around all fields; each field is bare text.
  setFrame(false);
  setAlignment(Qt::AlignCenter);
  QPalette clear = palette();
  clear.setColor(QPalette::Base, Qt::transparent);
  setPalette(clear);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

QSize PickerFieldEditor::sizeHint() const {
  // Room for the widest digit in every place, plus the editor's own side
  // margins (2 each) and the cursor (1), so no digit is ever clipped or
  // scrolled out of sight.
  const QFontMetrics metrics(font());
  int widest = 0;
  for (QChar digit = u'0'; digit <= u'9'; digit = QChar(digit.unicode() + 1))
    widest = std::max(widest, metrics.horizontalAdvance(digit));
  const QMargins margins = textMargins();
  const int width = widest * digits_ + margins.left() + margins.right() + 5;
  return {width, QLineEdit::sizeHint().height()};
}

std::optional<int> PickerFieldEditor::platformKeyCode(int qtKey) {
  switch (qtKey) {
    case Qt::Key_Left: return OrbDatePicker::kKeyLeft;
    case Qt::Key_Right: return OrbDatePicker::kKeyRight;
    case Qt::Key_Down: return OrbDatePicker::kKeyDown;
    case Qt::Key_Up: return OrbDatePicker::kKeyUp;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return OrbDatePicker::kKeyTab;
    case Qt::Key_Backspace: return OrbDatePicker::kKeyDelete;
    default: return std::nullopt;
  }
}

bool PickerFieldEditor::offerKey(QKeyEvent* event) {
  // Arrows with Ctrl or Alt keep their ordinary editing meaning.
  if (!host_) return false;
  if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  const std::optional<int> code = platformKeyCode(event->key());
  if (!code) return false;
  const bool shift = (event->modifiers() & Qt::ShiftModifier) || event->key() == Qt::Key_Backtab;
  return host_->fieldKey(field_, *code, shift ? OrbDatePicker::kShiftFlag : 0, !hasSelectedText());
}

bool PickerFieldEditor::event(QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    // Tab never reaches keyPressEvent: the widget's focus chain takes it
    // first. The picker decides; past its ends Qt's chain goes on.
    auto* key = static_cast<QKeyEvent*>(event);
    if ((key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) && offerKey(key)) return true;
  }
  if (event->type() == QEvent::ShortcutOverride && host_) {
    // Undo while editing is the picker's own; with nothing left to undo in
    // this field, the window's Undo takes the keys.
    auto* key = static_cast<QKeyEvent*>(event);
    const bool redo = key->matches(QKeySequence::Redo);
    if (redo || key->matches(QKeySequence::Undo)) {
      if (host_->canUndoField(redo))
        event->accept();
      else
        event->ignore();
      return true;
    }
  }
  return QLineEdit::event(event);
}

void PickerFieldEditor::keyPressEvent(QKeyEvent* event) {
  if (!host_) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  const bool redo = event->matches(QKeySequence::Redo);
  if (redo || event->matches(QKeySequence::Undo)) {
    // The editor's own history knows nothing of the model's: never used.
    if (host_->canUndoField(redo)) host_->undoField(field_, redo);
    event->accept();
    return;
  }
  if (event->matches(QKeySequence::Paste) && host_->fieldPaste(field_, QGuiApplication::clipboard()->text())) {
    event->accept();
    return;
  }
  if (offerKey(event)) {
    event->accept();
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) host_->fieldReturn(field_);
  QLineEdit::keyPressEvent(event);
}

void PickerFieldEditor::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  // The whole value is selected, so typing replaces it; after the click
  // that brought the focus has placed the cursor.
  QTimer::singleShot(0, this, &QLineEdit::selectAll);
  if (host_) host_->fieldFocusIn(field_);
}

void PickerFieldEditor::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (host_) host_->fieldFocusOut(field_, event->reason());
}
