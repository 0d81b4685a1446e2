#include "desktop/dialogs/message_dialog.h"

#include <QApplication>

#include "desktop/base/qt_text.h"
#include "desktop/dialogs/message_box.h"
#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

const MessageDialogButton& MessageDialog::ShowModalWithin(Window* window) {
  MessageBox box(window != nullptr ? &window->Native() : nullptr,
                 Icon == kCaution ? QMessageBox::Warning : QMessageBox::NoIcon, ToQt(Message));
  box.AddOnlyButton(ToQt(ActionButton.Caption));
  Window::RunDialog(box, window);
  return ActionButton;
}

void Beep() { QApplication::beep(); }

}  // namespace fundlet
