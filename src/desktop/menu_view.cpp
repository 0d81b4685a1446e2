#include "desktop/menu_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "desktop/menu.h"
#include "desktop/native_window.h"
#include "desktop/qt_text.h"
#include "desktop/window.h"

namespace fundlet {

namespace {

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
    shown_.push_back({&item, &AddAction(menu, item)});
  }
}

QAction& MenuView::AddAction(QMenu& menu, MenuItem& item) {
  QAction& action = *menu.addAction(Escaped(item.Text));
  action.setObjectName(ToQt(item.Name));
  action.setShortcut(Shortcut(item));
  action.setAutoRepeat(false);
  action.setMenuRole(RoleOf(item));
  action.setEnabled(false);
  QObject::connect(&action, &QAction::triggered, &menu, [this, &item] {
    if (NativeWindow::Active() != nullptr) window_.Choose(item);
  });
  return action;
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
