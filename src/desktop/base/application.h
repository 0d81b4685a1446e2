#pragma once

#include <functional>
#include <string>

namespace fundlet {

class MenuBar;

// The program as the desktop knows it. Texts are UTF-8.
class Application {
 public:
  virtual ~Application() = default;

  std::string Name;         // for the titles of messages, and for the desktop
  std::string Version;      // as the about panel shows it
  std::string DesktopFile;  // the name of the entry in the desktop's menu, without its extension
  std::string IconFiles;    // the icon's resources; %1 stands for their size in pixels
  std::string HelpKey;      // the text that the keys for help give: the Help key, F1 and control-E
  fundlet::MenuBar* MenuBar = nullptr;  // of the application, and of each window that sets none
  // Tells the user of a failure that no handler of the program has caught.
  std::function<void(const std::string& message)> Report;

  // Declares, before the desktop has started, that the program draws sharply on dense displays.
  static void _SetSupportsHiDPI(bool supported);
};

// The registered application object; NilObjectException before there is one.
Application& App();
void RegisterApplication(Application& application);

// Asks the event loop to end; the process then ends with the given status.
void Quit(int status);

}  // namespace fundlet
