#include "ui/global_module.h"

#include "desktop/message_dialog.h"
#include "desktop/window.h"
#include "ui/help_window.h"

namespace fundlet {

bool GlobalModule::HelpShowing = false;
std::shared_ptr<aHelpWindow> GlobalModule::HelpWindow;

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
