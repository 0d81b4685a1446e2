#pragma once

class QKeyEvent;

namespace fundlet {

class Control;

// What a NativeWindow reports to its Window.
class WindowEvents {
 public:
  // Activated by the system, or because a dialog over the window has closed.
  virtual void Activated() = 0;
  virtual void Deactivated() = 0;
  virtual void CloseAsked() = 0;
  virtual void Resized() = 0;  // the user or the desktop environment has resized the content
  // A key that no control has accepted. True if the window has a use for it.
  virtual bool KeyPressed(const QKeyEvent& event) = 0;
  virtual const Control* RingedControl() const = 0;  // to be drawn in a focus ring; null for none

 protected:
  ~WindowEvents() = default;
};

}  // namespace fundlet
