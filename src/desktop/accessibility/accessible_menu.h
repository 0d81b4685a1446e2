#pragma once

#include <vector>

#include <QAccessibleWidget>
#include <QPointer>

class QAction;
class QMenu;

namespace fundlet {

// An open menu as screen readers see it. Qt's own has no name, and gives the shortcut of
// an item in a form that some readers take for the way of keys to it, and do not speak.
class AccessibleMenu : public QAccessibleWidget {
 public:
  explicit AccessibleMenu(QMenu& menu);
  ~AccessibleMenu() override;

  QString text(QAccessible::Text kind) const override;
  QAccessibleInterface* parent() const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;

 private:
  struct Item {
    QAction* action;
    QAccessible::Id id;
  };

  QMenu& Menu() const;
  mutable std::vector<Item> items_;
};

}  // namespace fundlet
