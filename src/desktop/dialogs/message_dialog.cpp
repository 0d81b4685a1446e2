#include "desktop/dialogs/message_dialog.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include "desktop/base/qt_text.h"
#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

const MessageDialogButton& MessageDialog::ShowModalWithin(Window* window) {
  QMessageBox box(window != nullptr ? &window->Native() : nullptr);
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQt(Message));
  box.setWindowTitle(QApplication::applicationName());
  box.setIcon(Icon == kCaution ? QMessageBox::Warning : QMessageBox::NoIcon);
  auto* button = box.addButton(ToQt(ActionButton.Caption), QMessageBox::AcceptRole);
  box.setDefaultButton(button);
  box.setEscapeButton(button);
  Window::RunDialog(box, window);
  return ActionButton;
}

void Beep() { QApplication::beep(); }

}  // namespace fundlet
