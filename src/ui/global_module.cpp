#include "ui/global_module.h"

#include "desktop/dialogs/message_dialog.h"
#include "desktop/windows/window.h"

namespace fundlet {

bool GlobalModule::HelpShowing = false;
// Never destroyed: if Qt ends the process by exit(), no window may be destroyed after QApplication.
std::shared_ptr<aHelpWindow>& GlobalModule::HelpWindow = *new std::shared_ptr<aHelpWindow>;

void GlobalModule::Initialise() {
  HelpShowing = false;
  HelpWindow.reset();
}

void GlobalModule::Release() { HelpWindow.reset(); }

void GlobalModule::AlertBox(const std::string& message) {
  MessageDialog dialog;
  dialog.Message = message;
  dialog.Icon = MessageDialog::kCaution;
  dialog.ActionButton.Caption = "OK";
  Beep();
  dialog.ShowModalWithin(Window::Front());
}

}  // namespace fundlet
