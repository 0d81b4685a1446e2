#pragma once

#include <memory>

#include <QKeyCombination>
#include <QMainWindow>

#include "desktop/base/property_set.h"
#include "desktop/windows/menu_view.h"

namespace fundlet {

class WindowEvents;

// The Qt window of a Window. Its central widget holds the content area. If the desktop environment
// gives the window another size than that of its content, the content stands at the top left on a
// ground of its colour; in a smaller window it is shifted so that the control with the focus is
// seen.
class NativeWindow : public QMainWindow {
 public:
  explicit NativeWindow(WindowEvents& window);
  ~NativeWindow() override;

  // The window that a QWidget or QWindow belongs to; null if that is a dialog.
  static NativeWindow* Of(QObject* object);

  // Gives all windows the program's icon, unless they have it.
  static void ReadProgramIcon();

  QWidget& Content() const { return *content_; }

  void SetContentSize(int width, int height);
  QSize ContentSize() const;
  // Limits of the content size, in pixels; they apply only while the window is resizable.
  void SetSmallest(int width, int height);
  QSize Smallest() const { return smallest_; }
  void SetLargest(int width, int height);
  QSize Largest() const { return largest_; }
  void SetResizeable(bool resizeable);
  void SetButton(Qt::WindowType button, bool present);
  void SetBackColor(Colour colour);
  void SetHasBackColor(bool painted);
  void SetMenuBarVisible(bool visible) { menu_bar_visible_ = visible; }

  // Makes the menus, unless the menu bar is hidden. To be called once.
  void ShowMenus(const MenuItem& tree, MenuView::Callbacks callbacks);
  MenuView* Menus() const { return menus_.get(); }  // null if the window shows none
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
  QSize Outside() const;  // the size of the frame and the menu bar together
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
  bool accepts_any_size_ = false;
  bool menu_bar_visible_ = true;
};

}  // namespace fundlet
