#pragma once

class QEvent;
class QObject;
class QWidget;

namespace fundlet {

// The program's own frame: a title to move the window by, a close box, and a minimise box if the
// window has Qt::WindowMinimizeButtonHint. It replaces the frame that Qt draws on Wayland, which
// has a zoom box whatever the window flags say.
class OwnFrame {
 public:
  // Adds the frame to a window that has just been shown, unless the compositor draws one. The
  // window then accepts any size that the compositor sets. True if the window has this frame.
  static bool AddTo(QWidget& window);

  // Whether the mouse event is on the title of such a frame.
  static bool IsOnTitle(const QObject* object, const QEvent& event);
};

}  // namespace fundlet
