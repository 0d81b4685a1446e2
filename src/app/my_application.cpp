#include "app/my_application.h"

#include "services/text.h"
#include "ui/default_menu.h"
#include "ui/global_module.h"
#include "ui/main_window.h"

namespace fundlet {

namespace {

constexpr std::uint32_t kHelpKeyCode = 5;

}  // namespace

void MyApplication::_EarlyStartup() {
  _SetSupportsHiDPI(true);
  _NewAppInstance();
}

void MyApplication::_NewAppInstance() {
  static MyApplication application;
  application.Name = "Fundlet";
  application.Version = std::string(FUNDLET_VERSION);  // g++ 12 warns of a literal of one character
  application.DesktopFile = "fundlet";
  application.IconFiles = ":/fundlet/fundlet-%1.png";
  application.HelpKey = Chr(kHelpKeyCode);
  application.MenuBar = &DefaultMenu::Instance();
  application.Report = &GlobalModule::AlertBox;
  RegisterApplication(application);
}

void MyApplication::_LateStartup() { _MakeDefaultView(); }

void MyApplication::_MakeDefaultView() { aFundletWindow::Instance(); }

int RunFundlet(const char* program) {
  Runtime runtime(program);
  GlobalModule::Initialise();
  runtime.Start(&MyApplication::_EarlyStartup, &MyApplication::_LateStartup);
  const int status = runtime.Run();
  GlobalModule::Release();
  return status;
}

}  // namespace fundlet
