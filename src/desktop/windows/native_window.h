#pragma once

#include <cstdint>
#include <memory>

#include <QMainWindow>

#include "desktop/base/property_set.h"
#include "desktop/windows/menu_view.h"

namespace fundlet {

class Window;

// The Qt window of a Window. Its central widget holds the content area. If the desktop environment
// gives the window another size than that of its content, the content stands at the top left on a
// background of its colour; in a smaller window it is shifted so that the control with the focus is
// seen.
class NativeWindow : public QMainWindow {
 public:
  explicit NativeWindow(Window& window);

  // The window or dialog that a QWidget or QWindow belongs to; null for a QWindow without widgets.
  static QWidget* TopLevelOf(QObject* object);
  // The same; null if that is a dialog.
  static NativeWindow* Of(QObject* object);

  // Gives all windows the program's icon, unless they have it.
  static void ReadProgramIcon();

  QWidget& Content() const { return *content_; }

  void SetContentSize(int width, int height);
  QSize ContentSize() const { return content_->size(); }
  // Limits of the content size, in pixels; they apply only while the window is resizable.
  void SetMinWidth(std::int64_t width) { SetLimit(smallest_.rwidth(), width); }
  void SetMinHeight(std::int64_t height) { SetLimit(smallest_.rheight(), height); }
  void SetMaxWidth(std::int64_t width) { SetLimit(largest_.rwidth(), width); }
  void SetMaxHeight(std::int64_t height) { SetLimit(largest_.rheight(), height); }
  int MinHeight() const { return smallest_.height(); }
  void SetResizeable(bool resizeable);
  template <Qt::WindowType kButton>
  void SetButton(bool present) {
    setWindowFlag(kButton, present);
  }
  void SetBackColor(Colour colour);
  void SetHasBackColor(bool painted) { centralWidget()->setAutoFillBackground(painted); }
  void SetMenuBarVisible(bool visible) { menu_bar_visible_ = visible; }

  // Makes the menus, unless the menu bar is hidden. To be called once.
  void ShowMenus();
  MenuView* Menus() const { return menus_.get(); }  // null if the window shows none
  // Shows the window for the first time.
  void ShowFirst();
  // Draws the ring anew, and moves the content just far enough that the control with the focus is
  // visible.
  void ShowFocus();
  // Makes the window the active one, and calls Window::Activated, because not every platform
  // plug-in sends WindowActivate.
  void Activate();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QSize Outside() const;  // the size of the frame and the menu bar together
  void SetLimit(int& limit, std::int64_t pixels);
  void FitToContent();

  Window& window_;
  QWidget* content_;
  std::unique_ptr<MenuView> menus_;
  QSize smallest_ = {0, 0};
  QSize largest_ = {QWIDGETSIZE_MAX, QWIDGETSIZE_MAX};
  bool resizeable_ = false;
  QSize outside_ = {0, 0};
  bool accepts_any_size_ = false;
  bool menu_bar_visible_ = true;
};

}  // namespace fundlet
