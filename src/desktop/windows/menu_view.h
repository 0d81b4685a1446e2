#pragma once

#include <functional>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QPoint;

namespace fundlet {

class MenuItem;

// One window's menus on the screen, made from the tree of items. The tree exists once; the bar, the
// menus and the actions are the window's own, and act on that window.
class MenuView {
 public:
  // What the window does for its menus.
  struct Callbacks {
    std::function<void()> enable;  // decides which items can be chosen now
    std::function<void(MenuItem&)> choose;
  };
  MenuView(Callbacks callbacks, const MenuItem& tree, QMenuBar& bar);

  // Shows which items are enabled.
  void UpdateActions();
  // Shows the menu that has the editing commands as a context menu.
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
