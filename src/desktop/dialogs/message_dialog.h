#pragma once

#include <string>

namespace fundlet {

class Window;

// The button that dismisses a message.
struct MessageDialogButton {
  std::string Caption = "OK";
};

// A message that the user has to dismiss. Texts are UTF-8 and are shown as they are.
class MessageDialog {
 public:
  std::string Message;
  static constexpr int kCaution = 1;
  int Icon = 0;  // kCaution, or 0 for none
  MessageDialogButton ActionButton;

  // Shows the message over the window, or by itself if that is null. Returns ActionButton when the
  // message has been dismissed by its button, Return, Escape or its close box, or because the
  // window beneath or the program was closed. Event_Activate of the window follows when the handler
  // that called this has returned.
  const MessageDialogButton& ShowModalWithin(Window* window);
};

// The system's alert sound.
void Beep();

}  // namespace fundlet
