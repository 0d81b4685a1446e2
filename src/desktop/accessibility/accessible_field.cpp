#include "desktop/accessibility/accessible_field.h"

#include <QLineEdit>

namespace fundlet {

AccessibleField::AccessibleField(QLineEdit& field)
    : QAccessibleWidget(&field, QAccessible::EditableText) {}

QLineEdit& AccessibleField::Field() const { return *static_cast<QLineEdit*>(widget()); }
QString AccessibleField::Shown() const { return Field().displayText(); }

void* AccessibleField::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleField::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.editable = true;
  state.readOnly = Field().isReadOnly();
  state.selectableText = true;
  state.passwordEdit = Field().echoMode() != QLineEdit::Normal;
  return state;
}

QString AccessibleField::text(QAccessible::Text kind) const {
  return kind == QAccessible::Value ? Shown() : QAccessibleWidget::text(kind);
}

void AccessibleField::setText(QAccessible::Text kind, const QString& text) {
  if (kind == QAccessible::Value) replaceText(0, characterCount(), text);
}

void AccessibleField::selection(int index, int* start, int* end) const {
  const bool exists = index == 0 && Field().hasSelectedText();
  *start = exists ? Field().selectionStart() : 0;
  *end = exists ? Field().selectionEnd() : 0;
}

int AccessibleField::selectionCount() const { return Field().hasSelectedText() ? 1 : 0; }
void AccessibleField::addSelection(int start, int end) { setSelection(0, start, end); }

void AccessibleField::removeSelection(int index) {
  if (index == 0) Field().deselect();
}

void AccessibleField::setSelection(int index, int start, int end) {
  if (index == 0) Field().setSelection(start, end - start);
}

int AccessibleField::cursorPosition() const { return Field().cursorPosition(); }
void AccessibleField::setCursorPosition(int position) { Field().setCursorPosition(position); }
QString AccessibleField::text(int start, int end) const { return Shown().mid(start, end - start); }
int AccessibleField::characterCount() const { return static_cast<int>(Shown().size()); }

QRect AccessibleField::characterRect(int offset) const {
  const QFontMetrics metrics = Field().fontMetrics();
  const auto left = [&](int end) { return metrics.horizontalAdvance(Shown().left(end)); };
  const QRect caret = Field().inputMethodQuery(Qt::ImCursorRectangle).toRect();
  const int first = caret.center().x() - left(cursorPosition());
  const QPoint corner(first + left(offset), caret.top());
  return {Field().mapToGlobal(corner), QSize(left(offset + 1) - left(offset), caret.height())};
}

int AccessibleField::offsetAtPoint(const QPoint& point) const {
  return Field().cursorPositionAt(Field().mapFromGlobal(point));
}

void AccessibleField::scrollToSubstring(int start, int end) { setSelection(0, start, end); }

QString AccessibleField::attributes(int /*offset*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

void AccessibleField::deleteText(int start, int end) { replaceText(start, end, {}); }
void AccessibleField::insertText(int offset, const QString& text) {
  replaceText(offset, offset, text);
}

void AccessibleField::replaceText(int start, int end, const QString& text) {
  if (!Field().isReadOnly()) Field().setText(Field().text().replace(start, end - start, text));
}

}  // namespace fundlet
