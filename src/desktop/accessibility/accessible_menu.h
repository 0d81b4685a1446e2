#pragma once

#include <vector>

#include <QAccessibleWidget>
#include <QPointer>

class QAction;
class QMenu;

namespace fundlet {

// A QMenu for screen readers. Qt's own interface has no name, and gives an item's shortcut in a
// form that some screen readers take for its access keys and do not speak.
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
