#pragma once

#include <utility>
#include <vector>

class QAction;
class QMenu;
class QPoint;
class QString;
class QWidget;

namespace fundlet {

class MenuItem;
class Window;

// The QMenus of one window, made from the tree of menu items. The windows share the tree; each has
// menus and QActions of its own, which act on that window.
class MenuView {
 public:
  // Fills the window's menu bar. A menu that opens calls Window::UpdateMenuItems; Window::Choose is
  // called for each item that the user picks, by its shortcut also while it is disabled.
  explicit MenuView(Window& window);

  // Enables each QAction whose item is enabled, and disables the others.
  void UpdateActions();
  // Opens the menu with the editing commands as a context menu, at a point in screen coordinates;
  // does nothing if no menu has any.
  void ShowEditMenu(const QPoint& place) const;

 private:
  QMenu* NewMenu(const QString& title, const MenuItem& item, QWidget& parent);
  QAction* AddAction(QMenu& menu, MenuItem& item);

  Window& window_;
  std::vector<std::pair<const MenuItem*, QAction*>> shown_;
  QMenu* edit_menu_ = nullptr;
};

}  // namespace fundlet
