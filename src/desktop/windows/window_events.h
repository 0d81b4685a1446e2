#pragma once

class QKeyEvent;

namespace fundlet {

class Control;

// What the native side of a window tells the window.
class WindowEvents {
 public:
  // Activated by the system, or because a dialog over the window has closed.
  virtual void Activated() = 0;
  virtual void Deactivated() = 0;
  virtual void CloseAsked() = 0;
  virtual void Resized() = 0;  // the content, and not by the program
  // A key that no control has used up. True where it meant something.
  virtual bool KeyPressed(const QKeyEvent& event) = 0;
  virtual const Control* RingedControl() const = 0;  // to be drawn in a focus ring; null for none

 protected:
  ~WindowEvents() = default;
};

}  // namespace fundlet
