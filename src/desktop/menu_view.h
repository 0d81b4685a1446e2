#pragma once

#include <vector>

#include <QKeyCombination>

class QAction;
class QMenu;
class QMenuBar;

namespace fundlet {

class MenuItem;
class Window;

// One window's menus on the screen, made from the tree of items. The tree exists once; the bar, the
// menus and the actions are the window's own, and act on that window.
class MenuView {
 public:
  MenuView(Window& window, const MenuItem& tree, QMenuBar& bar);

  // Shows which items are enabled.
  void ShowEnabling();
  // Chooses the item whose shortcut the keys are; True where there is one that is enabled.
  bool TriggerShortcut(QKeyCombination keys);

 private:
  struct Shown {
    MenuItem* item;
    QAction* action;
  };

  void AddItem(QMenu& menu, MenuItem& item);
  QAction& AddAction(QMenu& menu, MenuItem& item);
  void AddMenuTo(QMenu& menu, MenuItem& item);
  void Fill(QMenu& menu, MenuItem& item);

  Window& window_;
  std::vector<Shown> shown_;
};

}  // namespace fundlet
