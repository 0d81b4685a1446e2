#pragma once

class QEvent;
class QObject;
class QWidget;

namespace fundlet {

// A frame of the program's own: a title to move the window by, a close box, and a minimise box
// where the window has one. It stands where Qt would draw the frame, which then has a zoom
// box whatever the window asks for.
class OwnFrame {
 public:
  // Puts the frame round a window that has just been shown, unless the desktop draws one. The
  // window then takes any size that the desktop gives it. True where the frame was put.
  static bool PutRound(QWidget& window);

  // Whether the mouse event goes to such a frame, and so not to what the window holds.
  static bool Takes(const QObject* object, const QEvent& event);
};

}  // namespace fundlet
