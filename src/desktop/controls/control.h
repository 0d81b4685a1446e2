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

// What a control needs of its window.
class ControlOwner {
 public:
  virtual QWidget& Content() const = 0;  // the parent of the controls' widgets
  virtual Control* Focused() const = 0;  // null for none
  // A control has gained or lost the keyboard focus. While a menu is open, the control beneath it
  // keeps the focus in this sense.
  virtual void OnFocusGained(Control& control) = 0;
  virtual void OnFocusLost(Control& control) = 0;
  // Presses the default button for Return and Enter, the cancel button for Escape. An auto-repeat
  // presses nothing. Returns whether the window has a button for the key.
  virtual bool PressButtonFor(const QKeyEvent& event) = 0;
  // Opens the menu with the editing commands as a context menu, at a point in screen coordinates.
  virtual void ShowEditMenu(const QPoint& place) = 0;

 protected:
  ~ControlOwner() = default;
};

// The text that the key enters, mostly one character; empty for a key without text. The keys for
// help, which are the Help key, F1 and control-E, give the application's HelpKey.
std::string KeyText(const QKeyEvent& event);

// What all controls have in common. Positions and sizes are in pixels, relative to the top left of
// the window's content area.
//
// The window that is given at construction owns the control (Window::_AddControl) and its widget.
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
  // The tool tip, also of a disabled control, and its description for a screen reader. A carriage
  // return in the text ends a line.
  void SetHelpTag(std::string_view text);

  // Repaints the control: at once, or when Qt next delivers events.
  void Refresh(bool at_once);
  // Gives the control the keyboard focus. When it returns, LostFocus of the previous control and
  // GotFocus of this one have run; GotFocus runs even if this control had the focus already.
  void SetFocus();

  // Whether the window draws a ring round the control while it has the focus.
  bool UseFocusRing() const { return use_focus_ring_; }
  void SetUseFocusRing(bool use) { use_focus_ring_ = use; }

  std::int64_t TabIndex() const { return tab_index_; }
  ControlOwner& Owner() const { return owner_; }
  QWidget* Native() const { return native_; }
  // The same as the Qt class that it is.
  template <typename Widget>
  Widget& NativeAs() const {
    return static_cast<Widget&>(*native_);
  }

  // Run the program's handlers for a focus that is gained or lost. Only the window calls these.
  virtual void FireGotFocus() {}
  virtual void FireLostFocus() {}
  // Whether the control loses the focus when its window becomes inactive. True for text fields,
  // whose text the program may not have read yet.
  virtual bool LosesFocusWithWindow() const { return false; }
  // Makes the text that an input method is composing in the control part of the control's text.
  virtual void CommitComposition() {}
  // Whether the editing command can act on the control's text now; false for None.
  virtual bool CanEdit(EditCommand /*command*/) const { return false; }
  // Carries the command out; only to be called if CanEdit is true.
  virtual void Edit(EditCommand /*command*/) {}

 protected:
  // The rows for order, size, position and name, which every class of controls has.
  static const std::array<PropertyRow, 12> kCommonRows;

  Control(ControlOwner& owner, QWidget* native);
  std::string Described() const override;

  // Adapts the font to a new size, font or text.
  virtual void FitText() {}

 private:
  friend class Window;

  void SetName(std::string_view name);

  ControlOwner& owner_;
  QWidget* native_;  // owned by the window's own widget
  std::string name_;
  std::int64_t tab_index_ = 0;
  bool use_focus_ring_ = true;
};

// The numbers by which a property names the place of a text in its frame.
struct AlignmentNumbers {
  std::int64_t left;
  std::int64_t centre;
  std::int64_t right;
};
inline constexpr AlignmentNumbers kLabelAlignment{0, 1, 2};
inline constexpr AlignmentNumbers kFieldAlignment{0, 2, 3};  // 1 means left, too

// A control with text. A font family that is not installed is replaced by a similar one; "System"
// is the font of the desktop environment. The size is in pixels. A text that is wider than the
// control is condensed.
class TextControl : public Control {
 protected:
  // Rows that several classes share.
  static const std::array<PropertyRow, 6> kFontRows;
  static const std::array<PropertyRow, 3> kDataBindingRows;

  using Control::Control;
  void SetApplied() override { FitText(); }
  void FitText() override;

  // The text that must be visible as a whole, and the width for it in pixels.
  virtual std::string WidestText() const { return {}; }
  virtual int WidthForText() const { return Width(); }

 private:
  void SetTextFont(std::string_view family) { family_ = family; }

  std::string family_ = "System";
  float pixels_ = 12.0F;
  bool bold_ = false;
  bool italic_ = false;
  bool underline_ = false;
};

}  // namespace fundlet
