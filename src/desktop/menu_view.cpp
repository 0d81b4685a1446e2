#include "desktop/menu_view.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "desktop/menu.h"
#include "desktop/native_window.h"
#include "desktop/qt_text.h"
#include "desktop/window.h"

namespace fundlet {

namespace {

constexpr const char* kActionsName = "fundlet menu actions";

QString Escaped(const std::string& text) { return ToQt(text).replace('&', "&&"); }

// The toolkit's name for the Cmd key is Ctrl; it puts the platform's own key in its place.
QKeySequence Shortcut(const MenuItem& item) {
  return QKeySequence::fromString(ToQt(item.KeyboardShortcut).replace("Cmd", "Ctrl"),
                                  QKeySequence::PortableText);
}

QAction::MenuRole RoleOf(const MenuItem& item) {
  if (dynamic_cast<const QuitMenuItem*>(&item) != nullptr) return QAction::QuitRole;
  if (dynamic_cast<const AppleMenuItem*>(&item) != nullptr) return QAction::AboutRole;
  return QAction::NoRole;
}

// The holder of the shared actions; it goes with the toolkit.
QObject& SharedActions() {
  auto* holder = qApp->findChild<QObject*>(kActionsName, Qt::FindDirectChildrenOnly);
  if (holder == nullptr) {
    holder = new QObject(qApp);
    holder->setObjectName(kActionsName);
  }
  return *holder;
}

QAction& SharedAction(MenuItem& item) {
  QObject& holder = SharedActions();
  const QString name = ToQt(item.Name);
  if (auto* action = holder.findChild<QAction*>(name, Qt::FindDirectChildrenOnly)) return *action;
  auto* action = new QAction(Escaped(item.Text), &holder);
  action->setObjectName(name);
  action->setShortcut(Shortcut(item));
  action->setAutoRepeat(false);
  action->setMenuRole(RoleOf(item));
  action->setEnabled(false);
  QObject::connect(action, &QAction::triggered, action, [&item] {
    if (Window* front = NativeWindow::Active(); front != nullptr) front->Choose(item);
  });
  return *action;
}

}  // namespace

MenuView::MenuView(Window& window, const MenuItem& tree, QMenuBar& bar) : window_(window) {
  for (const auto& item : tree.Children()) {
    if (!item->IsShown()) continue;
    auto* menu = new QMenu('&' + Escaped(item->Text), &bar);
    menu->setObjectName(ToQt(item->Name));
    Fill(*menu, *item);
    bar.addMenu(menu);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this] { window_.EnableMenuItems(); });
  }
}

void MenuView::Fill(QMenu& menu, MenuItem& item) {
  for (const auto& child : item.Children()) {
    if (child->IsShown()) AddItem(menu, *child);
  }
}

void MenuView::AddItem(QMenu& menu, MenuItem& item) {
  if (item.IsSeparator()) {
    menu.addSeparator();
  } else if (item.OpensMenu()) {
    AddMenuTo(menu, item);
  } else {
    QAction& action = SharedAction(item);
    menu.addAction(&action);
    shown_.push_back({&item, &action});
  }
}

void MenuView::AddMenuTo(QMenu& menu, MenuItem& item) {
  auto* submenu = new QMenu(Escaped(item.Text), &menu);
  submenu->setObjectName(ToQt(item.Name));
  Fill(*submenu, item);
  menu.addMenu(submenu);
  shown_.push_back({&item, submenu->menuAction()});
}

void MenuView::ShowEnabling() {
  for (const Shown& shown : shown_) shown.action->setEnabled(shown.item->Enabled());
}

bool MenuView::TriggerShortcut(QKeyCombination keys) {
  const QKeySequence sequence(
      QKeyCombination(keys.keyboardModifiers() & ~Qt::KeypadModifier, keys.key()));
  for (const Shown& shown : shown_) {
    if (shown.action->shortcut() != sequence || !shown.action->isEnabled()) continue;
    shown.action->trigger();
    return true;
  }
  return false;
}

}  // namespace fundlet
