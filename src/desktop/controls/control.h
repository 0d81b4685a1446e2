#pragma once

#include <array>
#include <string>

#include "desktop/base/property_set.h"

class QKeyEvent;
class QPoint;
class QWidget;

namespace fundlet {

class Control;
enum class EditCommand;

// A window as its controls know it.
class ControlOwner {
 public:
  virtual QWidget& Content() const = 0;  // where the controls stand
  virtual Control* Focused() const = 0;
  // The focus has come to a control, or gone from it, for good and not for the time of a menu.
  virtual void OnFocusGained(Control& control) = 0;
  virtual void OnFocusLost(Control& control) = 0;
  // Presses the default or the cancel button where the key means that, but not for a key that is
  // held down. True where it means one of them.
  virtual bool PressButtonFor(const QKeyEvent& event) = 0;
  // Shows the menu of the editing commands as a context menu; the place is on the screen.
  virtual void ShowEditMenu(const QPoint& place) = 0;

 protected:
  ~ControlOwner() = default;
};

// What all controls of a window have in common. Positions and sizes are in pixels of the window's
// content area, with the origin at its top left.
//
// The control's object belongs to its window, which is given at construction and outlives it.
class Control : public PropertyTarget {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  int Left() const;
  int Top() const;
  int Width() const;
  int Height() const;
  void SetLeft(std::int64_t left);
  void SetTop(std::int64_t top);
  void SetWidth(std::int64_t width);
  void SetHeight(std::int64_t height);

  bool Visible() const;
  void SetVisible(bool visible);
  bool Enabled() const;
  void SetEnabled(bool enabled);
  // Shown when the pointer rests on the control, enabled or not; a carriage return in it ends a
  // line. Also the control's description for a screen reader.
  void SetHelpTag(std::string_view text);

  // Repaints the control: with True before this returns, else with the next events.
  void Refresh(bool at_once);
  // Gives the control the keyboard focus. The handlers of both controls have run when it returns;
  // that of this one also where it has the focus already.
  void SetFocus();

  // Whether a ring is drawn round the control while it has the focus.
  bool UseFocusRing() const { return use_focus_ring_; }
  void SetUseFocusRing(bool use) { use_focus_ring_ = use; }

  int TabIndex() const { return tab_index_; }
  QWidget* Native() const { return native_; }

  // The focus has come, or gone. The window calls these; they run the program's handlers.
  virtual void FireGotFocus() {}
  virtual void FireLostFocus() {}
  // Whether the control has lost the focus when its window is no longer the active one: so it is
  // with what can be typed into, and so may hold what the program has not read yet.
  virtual bool LosesFocusWithWindow() const { return false; }
  // Enters the text that an input method still composes in the control.
  virtual void CommitComposition() {}
  // Whether the editing command can do something to the control's text now, and its carrying out.
  virtual bool CanEdit(EditCommand /*command*/) const { return false; }
  virtual void Edit(EditCommand /*command*/) {}

 protected:
  // The rows with which the table of every class of controls ends, but for single ones.
  static const std::array<PropertyRow, 12> kCommonRows;

  Control(ControlOwner& owner, QWidget* native);
  std::string Described() const override;

  ControlOwner& Owner() const { return owner_; }
  // The size or a text has changed, so that the text may have to be narrowed anew.
  virtual void FitText() {}

 private:
  friend class Window;

  void SetName(std::string_view name);
  void SetTabIndex(std::int64_t index);

  ControlOwner& owner_;
  QWidget* native_;  // owned by the window's own widget
  std::string name_;
  int tab_index_ = 0;
  bool use_focus_ring_ = true;
};

// A control that only shows a shape.
class ShapeControl : public Control {
 public:
  PropertyTable Properties() const override;

 protected:
  using Control::Control;
};

// The font of a control with a text: a family, or "System" for that of the desktop, and a size in
// pixels. A text that is wider than its place is narrowed until it fits.
class TextControl : public Control {
 public:
  void SetTextFont(std::string_view family);
  void SetTextSize(float pixels);
  void SetBold(bool bold);
  void SetItalic(bool italic);
  void SetUnderline(bool underline);

 protected:
  // Rows that the tables of controls with a text have in common.
  static const std::array<PropertyRow, 6> kFontRows;
  static const std::array<PropertyRow, 3> kDataBindingRows;

  using Control::Control;
  void SetApplied() override { FitText(); }
  void FitText() override;

  // The widest text that must be seen whole, and the pixels it has.
  virtual std::string WidestText() const { return {}; }
  virtual int WidthForText() const { return Width(); }

 private:
  std::string family_ = "System";
  float pixels_ = 12.0F;
  bool bold_ = false;
  bool italic_ = false;
  bool underline_ = false;
};

}  // namespace fundlet
