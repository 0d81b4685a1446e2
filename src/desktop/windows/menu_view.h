#pragma once

#include <functional>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QPoint;

namespace fundlet {

class MenuItem;

// The QMenus of one window, made from the tree of menu items. The windows share the tree; each has
// menus and QActions of its own, which act on that window.
class MenuView {
 public:
  // update enables and disables the items, and then calls UpdateActions; choose is called for each
  // item that the user picks, by its shortcut also while it is disabled.
  struct Callbacks {
    std::function<void()> update;
    std::function<void(MenuItem&)> choose;
  };
  // Fills the bar. The tree and the bar must outlive this.
  MenuView(Callbacks callbacks, const MenuItem& tree, QMenuBar& bar);

  // Enables each QAction whose item is enabled, and disables the others.
  void UpdateActions();
  // Opens the menu with the editing commands as a context menu, at a point in screen coordinates;
  // does nothing if no menu has any.
  void ShowEditMenu(const QPoint& place) const;

 private:
  struct Shown {
    MenuItem* item;
    QAction* action;
  };

  void AddItem(QMenu& menu, MenuItem& item);
  QAction& AddAction(QMenu& menu, MenuItem& item);
  void AddMenuTo(QMenu& menu, MenuItem& item);
  void Fill(QMenu& menu, MenuItem& item);

  Callbacks callbacks_;
  QMenuBar& bar_;
  std::vector<Shown> shown_;
  QMenu* edit_menu_ = nullptr;
};

}  // namespace fundlet
