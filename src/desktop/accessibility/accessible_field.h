#pragma once

#include <QAccessibleWidget>

class QLineEdit;

namespace fundlet {

// A QLineEdit for screen readers. Qt's own interface says of each character that its run of equal
// attributes ends before it, so that screen readers leave the last character out.
class AccessibleField : public QAccessibleWidget,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleField(QLineEdit& field);

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text kind, const QString& text) override;

  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override;
  void addSelection(int start, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  int cursorPosition() const override;
  void setCursorPosition(int position) override;
  QString text(int start, int end) const override;
  int characterCount() const override;
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;
  QString attributes(int offset, int* start, int* end) const override;

  void deleteText(int start, int end) override;
  void insertText(int offset, const QString& text) override;
  void replaceText(int start, int end, const QString& text) override;

 private:
  QLineEdit& Field() const;
  QString Shown() const;
};

}  // namespace fundlet
