#include "desktop/windows/menu_view.h"

#include <utility>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

#include "desktop/base/menu.h"
#include "desktop/base/qt_text.h"

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

MenuView::MenuView(Callbacks callbacks, const MenuItem& tree, QMenuBar& bar)
    : callbacks_(std::move(callbacks)), bar_(bar) {
  for (const auto& item : tree.Children()) {
    if (!item->IsShown()) continue;
    auto* menu = new QMenu('&' + Escaped(item->Text), &bar);
    menu->setObjectName(ToQt(item->Name));
    Fill(*menu, *item);
    bar.addMenu(menu);
    QObject::connect(menu, &QMenu::aboutToShow, menu, callbacks_.update);
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
  // Qt does not fire the shortcut of a disabled QAction, and the item is enabled or disabled only
  // when it is chosen. So the action only shows the shortcut, and a QShortcut fires.
  action.setShortcut(Shortcut(item));
  action.setShortcutContext(Qt::WidgetShortcut);
  if (!action.shortcut().isEmpty()) {
    auto* shortcut = new QShortcut(action.shortcut(), bar_.window());
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, &menu,
                     [this, &item] { callbacks_.choose(item); });
  }
  if (item.Edits != EditCommand::None) edit_menu_ = &menu;
  action.setMenuRole(RoleOf(item));
  action.setEnabled(false);
  QObject::connect(&action, &QAction::triggered, &menu, [this, &item] { callbacks_.choose(item); });
  return action;
}

void MenuView::AddMenuTo(QMenu& menu, MenuItem& item) {
  auto* submenu = new QMenu(Escaped(item.Text), &menu);
  submenu->setObjectName(ToQt(item.Name));
  Fill(*submenu, item);
  menu.addMenu(submenu);
  shown_.push_back({&item, submenu->menuAction()});
}

void MenuView::UpdateActions() {
  for (const Shown& shown : shown_) shown.action->setEnabled(shown.item->Enabled());
}

void MenuView::ShowEditMenu(const QPoint& place) const {
  if (edit_menu_ != nullptr) edit_menu_->popup(place);
}

}  // namespace fundlet
