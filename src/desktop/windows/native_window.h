#pragma once

#include <memory>

#include <QKeyCombination>
#include <QMainWindow>

#include "desktop/base/property_set.h"
#include "desktop/windows/menu_view.h"

namespace fundlet {

class WindowEvents;

// Qt's side of a window: a main window whose central widget holds the content area. The
// desktop may give the window another size than that of the content, which then stands at the top
// left of a ground in its colour. In a smaller window it is shifted so that the focus can be seen.
class NativeWindow : public QMainWindow {
 public:
  explicit NativeWindow(WindowEvents& window);
  ~NativeWindow() override;

  // The window that a QWidget or QWindow belongs to; null for those of dialogs.
  static NativeWindow* Of(QObject* object);

  // Gives all windows the program's icon, unless they have it.
  static void ReadProgramIcon();

  QWidget& Content() const { return *content_; }

  void SetContentSize(int width, int height);
  QSize ContentSize() const;
  void SetSmallest(int width, int height);
  QSize Smallest() const { return smallest_; }
  void SetLargest(int width, int height);
  QSize Largest() const { return largest_; }
  void SetResizeable(bool resizeable);
  void SetButton(Qt::WindowType button, bool present);
  void SetBackColor(Colour colour);
  void SetHasBackColor(bool painted);
  void SetMenuBarVisible(bool visible) { menu_bar_visible_ = visible; }

  // Makes the menus; to be called once the window's set of menus is settled.
  void ShowMenus(const MenuItem& tree, MenuView::Callbacks callbacks);
  MenuView* Menus() const { return menus_.get(); }  // null where the window shows none
  // Shows the window for the first time.
  void ShowFirst();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  QMenu* createPopupMenu() override { return nullptr; }

 private:
  QSize Outside() const;  // what the window takes beyond its content
  void FitToContent();
  void ShiftToFocus();

  WindowEvents& window_;
  QWidget* content_;
  std::unique_ptr<MenuView> menus_;
  QSize content_size_ = {0, 0};
  QSize smallest_ = {0, 0};
  QSize largest_ = {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
  bool resizeable_ = false;
  QSize outside_ = {0, 0};
  bool takes_any_size_ = false;
  bool menu_bar_visible_ = true;
};

}  // namespace fundlet
