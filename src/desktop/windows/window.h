#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "desktop/base/menu.h"
#include "desktop/base/property_set.h"
#include "desktop/controls/control.h"
#include "desktop/windows/window_events.h"
#include "services/exceptions.h"

class QDialog;

namespace fundlet {

class NativeWindow;

// A top-level window with controls at fixed places. A program's window derives from it, makes its
// controls in its constructor, and overrides the events it cares for. Sizes are those of the
// content area, in pixels; a menu bar inside the window is not part of it.
//
// Event_Activate, the handlers of menu items and a button's Action wait while another handler runs;
// the other events come within it where it brings them about.
class Window : public PropertyTarget, public ControlOwner, private WindowEvents {
 public:
  Window();
  ~Window() override;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  int Width() const;
  int Height() const;
  int Left() const;  // of the window without its frame
  int Top() const;
  void SetLeft(std::int64_t left);
  void SetTop(std::int64_t top);
  void SetWidth(std::int64_t width);
  void SetHeight(std::int64_t height);
  void SetTitle(std::string_view title);
  PropertyTable Properties() const override;

  // The menus of this window; without any, it shows the application's.
  void SetMenuBar(fundlet::MenuBar& menu_bar) { menu_bar_ = &menu_bar; }
  fundlet::MenuBar& MenuBar() const;
  // Binds a method to the item of that name, for when it is chosen with this window in front.
  void _AddMenuHandler(const std::string& item_name, std::function<bool()> handler);

  // Takes the control into the window's registry under its name; RuntimeException where there is
  // one of that name.
  void _AddControl(const std::string& name, std::unique_ptr<Control> control);
  // The control of that name; NilObjectException where there is none.
  Control& _ControlByName(std::string_view name) const;
  // The same, checked to be of the class asked for.
  template <typename ControlClass>
  ControlClass& ControlOf(std::string_view name) const;

  // Fires Event_Open. To be called once, when the window's object stands.
  void Open();
  // Makes the window visible and brings it to the front. The first time it fires Event_Activate,
  // with the focus on the first control in the order of the TabIndex.
  void Show();
  // Closes the window, and fires Event_Close, once.
  void Close();
  bool IsOpen() const { return open_; }
  // Takes the focus from whatever control has it, so that its handler runs.
  void ClearFocus();

  // The frontmost window of the program, null where none is visible.
  static Window* Front();

  // Whether the program ends with the window, whatever else is open then.
  virtual bool EndsProgram() const { return false; }
  virtual void Event_Open() {}
  virtual void Event_Activate() {}
  virtual void Event_Close() {}
  virtual void Event_EnableMenuItems() {}
  virtual bool Event_KeyDown(const std::string& /*key*/) { return false; }
  virtual void Event_Resized() {}

  // What the rest of the desktop calls.
  NativeWindow& Native() const { return *native_; }
  // Shows a dialog over the window, or by itself where that is null, and returns when it has been
  // answered. The window is activated once the handler that called this has returned.
  static void RunDialog(QDialog& dialog, Window* window);
  // Enters the text that an input method still composes in the control that has the focus.
  void CommitComposition() const;
  // The pass that decides which menu items can be chosen now.
  void UpdateMenuItems();

  QWidget& Content() const override;
  Control* Focused() const override { return focused_; }
  void OnFocusGained(Control& control) override;
  void OnFocusLost(Control& control) override;
  bool PressButtonFor(const QKeyEvent& event) override;
  void ShowEditMenu(const QPoint& place) override;

 protected:
  std::string Described() const override;

 private:
  void Activated() override;
  void Deactivated() override;
  void CloseAsked() override;
  void Resized() override;
  bool KeyPressed(const QKeyEvent& event) override;
  const Control* RingedControl() const override;
  void FirstShow();
  void Choose(MenuItem& item);  // carries it out, where it can be chosen
  void Centre();
  Control* ApplyTabOrder();  // gives the first control of the order, null where there is none
  bool HasHandler(const MenuItem& item) const;
  Control* EditTarget(EditCommand command) const;  // null where it can do nothing

  // The widgets, which refer to their controls, go before these.
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
