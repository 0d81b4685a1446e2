#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/base/menu.h"
#include "desktop/base/property_set.h"
#include "desktop/controls/control.h"
#include "services/exceptions.h"

namespace fundlet {

class NativeWindow;

// A top-level window with controls at fixed places. A program's window derives from it, makes its
// controls in its constructor, and overrides the events that it handles. Sizes are those of the
// content area, in pixels; a menu bar inside the window is not part of it.
//
// While a handler runs, Event_Activate, menu handlers, a button's Action and a request to close are
// queued until it returns. Events that it causes itself run at once, inside it.
class Window : public PropertyTarget, public ControlOwner {
 public:
  Window();
  ~Window() override;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  int Width() const;
  int Height() const;
  int Left() const;  // without the frame
  int Top() const;
  void SetLeft(std::int64_t left);
  void SetTop(std::int64_t top);
  void SetWidth(std::int64_t width);
  void SetHeight(std::int64_t height);
  void SetTitle(std::string_view title);
  PropertyTable Properties() const override;

  // The menus of this window; if none are set, the application's. NilObjectException if there are
  // none either.
  void SetMenuBar(fundlet::MenuBar& menu_bar) { menu_bar_ = &menu_bar; }
  fundlet::MenuBar& MenuBar() const;
  // Binds a handler to the menu item of that name, for this window; it replaces an earlier one.
  // What it returns is ignored.
  void _AddMenuHandler(const std::string& item_name, std::function<bool()> handler);

  // Registers the control under the name. RuntimeException if the window has a control of that
  // name; the new one is then destroyed with its widget.
  void _AddControl(const std::string& name, std::unique_ptr<Control> control);
  // The control of that name; NilObjectException if there is none.
  Control& _ControlByName(std::string_view name) const;
  // The same; NilObjectException also if it is of another class.
  template <typename ControlClass>
  ControlClass& ControlOf(std::string_view name) const;

  // Runs Event_Open. To be called once, when the window's object is complete.
  void Open();
  // Makes the window visible and brings it to the front, unless it is closed. The first call gives
  // the focus to the first control in the order of TabIndex, and then runs Event_Activate.
  void Show();
  // Closes the window and runs Event_Close; does nothing if the window is not open.
  void Close();
  bool IsOpen() const { return open_; }
  // Takes the focus from the control that has it, and runs its LostFocus.
  void ClearFocus();

  // The frontmost window of the program; null if none is visible.
  static Window* Front();

  // Whether the program ends when the window is closed, so that closing it dismisses all dialogs.
  virtual bool EndsProgram() const { return false; }
  virtual void Event_Open() {}
  // The window has become active. May run more than once for one dialog that closes over it.
  virtual void Event_Activate() {}
  virtual void Event_Close() {}
  virtual void Event_EnableMenuItems() {}
  // A key with a text (KeyText) that no control has used. Returns whether the window has used it.
  virtual bool Event_KeyDown(const std::string& /*key*/) { return false; }
  virtual void Event_Resized() {}

  // For the other classes of src/desktop.
  NativeWindow& Native() const { return *native_; }
  // Enables the menu items that can be chosen now and disables the others; does nothing while a
  // dialog is open.
  void UpdateMenuItems();
  // Runs the item's handler or command if it is enabled; does nothing while a dialog is open.
  void Choose(MenuItem& item);

  QWidget& Content() const override;
  Control* Focused() const override { return focused_; }
  void OnFocusGained(Control& control) override;
  void OnFocusLost(Control& control) override;
  bool PressButtonFor(const QKeyEvent& event) override;
  void ShowEditMenu(const QPoint& place) override;

 protected:
  std::string Described() const override;

 private:
  friend class NativeWindow;
  // What the native window reports.
  void Activated();  // by the system, or because a dialog over the window has closed
  void Deactivated();
  void CloseAsked();
  void Resized();  // the user or the desktop environment has resized the content
  // A key that no control has accepted. True if the window has a use for it.
  bool KeyPressed(const QKeyEvent& event);

  // 2 is the middle of the main screen; other numbers have no effect.
  void SetPlacement(std::int64_t placement) { centred_ = placement == 2; }
  void FirstShow();
  void Centre();
  Control* ApplyTabOrder();  // returns the first control in the order; null if there is none
  std::function<void()> ActionOf(const MenuItem& item);  // empty if the item has none now
  Control* EditTarget(EditCommand command) const;  // null if the command can act on no control

  // Declared before native_, so that the widgets, which refer to these, are destroyed first.
  std::vector<std::unique_ptr<Control>> controls_;
  std::unique_ptr<NativeWindow> native_;
  std::map<std::string, std::function<bool()>, std::less<>> menu_handlers_;
  fundlet::MenuBar* menu_bar_ = nullptr;
  Control* focused_ = nullptr;
  bool centred_ = false;
  bool open_ = false;
  bool shown_once_ = false;
  bool activation_due_ = false;
};

template <typename ControlClass>
ControlClass& Window::ControlOf(std::string_view name) const {
  auto* control = dynamic_cast<ControlClass*>(&_ControlByName(name));
  if (control == nullptr) {
    throw NilObjectException("The control “" + std::string(name) + "” is of another class.");
  }
  return *control;
}

}  // namespace fundlet
