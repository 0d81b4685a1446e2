#include "desktop/accessibility/accessible_interfaces.h"

#include <map>

#include <QAccessibleWidget>
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>

namespace fundlet {

namespace {

// A QLineEdit for screen readers. Qt's own interface says of each character that its run of equal
// attributes ends before it, so that screen readers leave the last character out.
class AccessibleField : public QAccessibleWidget,
                        public QAccessibleTextInterface,
                        public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleField(QLineEdit& field)
      : QAccessibleWidget(&field, QAccessible::EditableText) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface) {
      return static_cast<QAccessibleEditableTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.readOnly = Field().isReadOnly();
    state.selectableText = true;
    state.passwordEdit = Field().echoMode() != QLineEdit::Normal;
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Shown() : QAccessibleWidget::text(kind);
  }
  void setText(QAccessible::Text kind, const QString& text) override {
    if (kind == QAccessible::Value) replaceText(0, characterCount(), text);
  }

  void selection(int index, int* start, int* end) const override {
    const bool exists = index == 0 && Field().hasSelectedText();
    *start = exists ? Field().selectionStart() : 0;
    *end = exists ? Field().selectionEnd() : 0;
  }
  int selectionCount() const override { return Field().hasSelectedText() ? 1 : 0; }
  void addSelection(int start, int end) override { setSelection(0, start, end); }
  void removeSelection(int index) override {
    if (index == 0) Field().deselect();
  }
  void setSelection(int index, int start, int end) override {
    if (index == 0) Field().setSelection(start, end - start);
  }
  int cursorPosition() const override { return Field().cursorPosition(); }
  void setCursorPosition(int position) override { Field().setCursorPosition(position); }
  QString text(int start, int end) const override { return Shown().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(Shown().size()); }
  QRect characterRect(int offset) const override {
    const QFontMetrics metrics = Field().fontMetrics();
    const auto left = [&](int end) { return metrics.horizontalAdvance(Shown().left(end)); };
    const QRect caret = Field().inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int first = caret.center().x() - left(cursorPosition());
    const QPoint corner(first + left(offset), caret.top());
    return {Field().mapToGlobal(corner), QSize(left(offset + 1) - left(offset), caret.height())};
  }
  int offsetAtPoint(const QPoint& point) const override {
    return Field().cursorPositionAt(Field().mapFromGlobal(point));
  }
  void scrollToSubstring(int start, int end) override { setSelection(0, start, end); }
  QString attributes(int /*offset*/, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

  void deleteText(int start, int end) override { replaceText(start, end, {}); }
  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void replaceText(int start, int end, const QString& text) override {
    if (!Field().isReadOnly()) Field().setText(Field().text().replace(start, end - start, text));
  }

 private:
  QLineEdit& Field() const { return *static_cast<QLineEdit*>(widget()); }
  QString Shown() const { return Field().displayText(); }
};

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

// A QMenu for screen readers. Qt's own interface has no name, and gives an item's shortcut in a
// form that some screen readers take for its access keys and do not speak.
class AccessibleMenu : public QAccessibleWidget {
 public:
  explicit AccessibleMenu(QMenu& menu) : QAccessibleWidget(&menu, QAccessible::PopupMenu) {}
  ~AccessibleMenu() override {
    for (const auto& [action, id] : items_) QAccessible::deleteAccessibleInterface(id);
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? Menu().title().remove('&') : QAccessibleWidget::text(kind);
  }
  // The item that opens the menu.
  QAccessibleInterface* parent() const override {
    QAction* opener = Menu().menuAction();
    for (QObject* object : opener->associatedObjects()) {
      if (qobject_cast<QMenuBar*>(object) == nullptr && qobject_cast<QMenu*>(object) == nullptr)
        continue;
      const auto index = static_cast<QWidget*>(object)->actions().indexOf(opener);
      return QAccessible::queryAccessibleInterface(object)->child(static_cast<int>(index));
    }
    return QAccessibleWidget::parent();
  }
  int childCount() const override { return static_cast<int>(Menu().actions().size()); }
  QAccessibleInterface* child(int index) const override {
    QAction* action = Menu().actions().value(index);
    if (action == nullptr) return nullptr;
    QAccessible::Id& id = items_[action];
    if (id == 0) id = QAccessible::registerAccessibleInterface(new AccessibleItem(Menu(), *action));
    return QAccessible::accessibleInterface(id);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (this->child(i) == child) return i;
    }
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    QAction* action = Menu().actionAt(Menu().mapFromGlobal(QPoint(x, y)));
    return child(static_cast<int>(Menu().actions().indexOf(action)));
  }

 private:
  QMenu& Menu() const { return *static_cast<QMenu*>(widget()); }

  mutable std::map<QAction*, QAccessible::Id> items_;
};

constexpr const char* kRoleProperty = "fundletAccessibleRole";

QAccessibleInterface* InterfaceOf(const QString& /*class_name*/, QObject* object) {
  if (auto* field = qobject_cast<QLineEdit*>(object)) return new AccessibleField(*field);
  if (auto* menu = qobject_cast<QMenu*>(object)) return new AccessibleMenu(*menu);
  const QVariant role = object->property(kRoleProperty);
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr || !role.isValid()) return nullptr;
  return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void InstallAccessibleInterfaces() { QAccessible::installFactory(&InterfaceOf); }

void SetAccessibleRole(QWidget& widget, QAccessible::Role role) {
  widget.setProperty(kRoleProperty, static_cast<int>(role));
}

}  // namespace fundlet
