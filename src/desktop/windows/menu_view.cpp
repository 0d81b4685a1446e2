#include "desktop/windows/menu_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include "desktop/base/menu.h"
#include "desktop/base/qt_text.h"
#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

namespace {

QString Escaped(const std::string& text) { return ToQt(text).replace('&', "&&"); }

// QKeySequence calls the Cmd key Ctrl, which is the Control key on other platforms.
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

MenuView::MenuView(Window& window) : window_(window) {
  QMenuBar& bar = *window.Native().menuBar();
  for (const auto& item : window.MenuBar().Children()) {
    if (!item->IsShown()) continue;
    QMenu* menu = NewMenu('&' + Escaped(item->Text), *item, bar);
    bar.addMenu(menu);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this] { window_.UpdateMenuItems(); });
  }
}

QMenu* MenuView::NewMenu(const QString& title, const MenuItem& item, QWidget& parent) {
  auto* menu = new QMenu(title, &parent);
  menu->setObjectName(ToQt(item.Name));
  for (const auto& child : item.Children()) {
    if (!child->IsShown()) continue;
    if (child->IsSeparator()) {
      menu->addSeparator();
    } else if (child->OpensMenu()) {
      QMenu* submenu = NewMenu(Escaped(child->Text), *child, *menu);
      shown_.emplace_back(child.get(), menu->addMenu(submenu));
    } else {
      shown_.emplace_back(child.get(), AddAction(*menu, *child));
    }
  }
  return menu;
}

QAction* MenuView::AddAction(QMenu& menu, MenuItem& item) {
  const auto choose = [this, &item] { window_.Choose(item); };
  QAction* action = menu.addAction(Escaped(item.Text), &menu, choose);
  action->setObjectName(ToQt(item.Name));
  // Qt does not fire the shortcut of a disabled QAction, and the item may have become available
  // since the last menu update; Window::Choose runs another. So the action only shows the
  // shortcut, and a QShortcut fires.
  action->setShortcut(Shortcut(item));
  action->setShortcutContext(Qt::WidgetShortcut);
  if (!action->shortcut().isEmpty()) {
    auto* shortcut = new QShortcut(action->shortcut(), &window_.Native(), choose);
    shortcut->setAutoRepeat(false);
  }
  if (item.Edits != EditCommand::None) edit_menu_ = &menu;
  action->setMenuRole(RoleOf(item));
  action->setEnabled(false);
  return action;
}

void MenuView::UpdateActions() {
  for (const auto& [item, action] : shown_) action->setEnabled(item->Enabled());
}

void MenuView::ShowEditMenu(const QPoint& place) const {
  if (edit_menu_ != nullptr) edit_menu_->popup(place);
}

}  // namespace fundlet
