#include "desktop/accessibility/accessible_menu.h"

#include <algorithm>

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace fundlet {

namespace {

class AccessibleItem : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleItem(QMenu& menu, QAction& action) : menu_(&menu), action_(&action) {}

  bool isValid() const override { return menu_ != nullptr && action_ != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return parent()->window(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(menu_);
  }
  int childCount() const override { return action_->menu() != nullptr ? 1 : 0; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(action_->menu()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && child->object() == action_->menu() ? 0 : -1;
  }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return action_->text().replace("&&", "&");
    if (kind == QAccessible::Description) return MenuName();
    return kind == QAccessible::Accelerator ? Shortcut() : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QRect rect() const override {
    const QRect in_menu = menu_->actionGeometry(action_);
    return {menu_->mapToGlobal(in_menu.topLeft()), in_menu.size()};
  }
  QAccessible::Role role() const override {
    return action_->isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !menu_->isVisible() || !action_->isVisible();
    state.disabled = !action_->isEnabled();
    state.focusable = true;
    state.focused = menu_->isVisible() && menu_->activeAction() == action_;
    state.hasPopup = action_->menu() != nullptr;
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ActionInterface || action_->isSeparator()) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  QStringList actionNames() const override {
    return {action_->menu() != nullptr ? showMenuAction() : pressAction()};
  }
  void doAction(const QString& name) override {
    if (name == showMenuAction()) menu_->setActiveAction(action_);
    if (name == pressAction()) action_->trigger();
  }
  // The letter of the item in its menu, the keys that lead there through the menus, the shortcut.
  QStringList keyBindingsForAction(const QString& /*name*/) const override {
    if (action_->shortcut().isEmpty()) return {};
    return {QString(), QString(), Shortcut()};
  }

 private:
  // A menu opens with its first item selected, and screen readers do not speak the menu's own name
  // then, so the first item has it as its description.
  QString MenuName() const {
    if (menu_->actions().constFirst() != action_) return {};
    return menu_->title().remove('&') + " menu";
  }
  QString Shortcut() const { return action_->shortcut().toString(QKeySequence::NativeText); }

  QPointer<QMenu> menu_;
  QPointer<QAction> action_;
};

}  // namespace

AccessibleMenu::AccessibleMenu(QMenu& menu) : QAccessibleWidget(&menu, QAccessible::PopupMenu) {}

AccessibleMenu::~AccessibleMenu() {
  for (const Item& item : items_) QAccessible::deleteAccessibleInterface(item.id);
}

QMenu& AccessibleMenu::Menu() const { return *static_cast<QMenu*>(widget()); }

QString AccessibleMenu::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? Menu().title().remove('&') : QAccessibleWidget::text(kind);
}

// The item that opens the menu.
QAccessibleInterface* AccessibleMenu::parent() const {
  QAction* opener = Menu().menuAction();
  for (QObject* object : opener->associatedObjects()) {
    if (qobject_cast<QMenuBar*>(object) == nullptr && qobject_cast<QMenu*>(object) == nullptr)
      continue;
    const auto index = static_cast<QWidget*>(object)->actions().indexOf(opener);
    return QAccessible::queryAccessibleInterface(object)->child(static_cast<int>(index));
  }
  return QAccessibleWidget::parent();
}

int AccessibleMenu::childCount() const { return static_cast<int>(Menu().actions().size()); }

QAccessibleInterface* AccessibleMenu::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  QAction* action = Menu().actions().at(index);
  auto found = std::find_if(items_.begin(), items_.end(),
                            [action](const Item& item) { return item.action == action; });
  if (found == items_.end()) {
    const QAccessible::Id id =
        QAccessible::registerAccessibleInterface(new AccessibleItem(Menu(), *action));
    found = items_.insert(found, {action, id});
  }
  return QAccessible::accessibleInterface(found->id);
}

int AccessibleMenu::indexOfChild(const QAccessibleInterface* child) const {
  for (int i = 0; i < childCount(); ++i) {
    if (this->child(i) == child) return i;
  }
  return -1;
}

QAccessibleInterface* AccessibleMenu::childAt(int x, int y) const {
  QAction* action = Menu().actionAt(Menu().mapFromGlobal(QPoint(x, y)));
  return child(static_cast<int>(Menu().actions().indexOf(action)));
}

}  // namespace fundlet
