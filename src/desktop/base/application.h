#pragma once

#include <functional>
#include <string>

namespace fundlet {

class MenuBar;

// What src/desktop needs to know about the program. Texts are UTF-8.
class Application {
 public:
  virtual ~Application() = default;

  std::string Name;         // for the titles of messages and for the desktop environment
  std::string Version;      // for the about panel
  std::string DesktopFile;  // the name of the .desktop file, without its extension
  std::string IconFiles;    // the icon's resources; %1 stands for the size in pixels
  std::string HelpKey;      // the key text of all keys for help: the Help key, F1 and control-E
  fundlet::MenuBar* MenuBar = nullptr;  // the menus of each window that sets none of its own
  // Shows the user a failure that escaped a handler.
  std::function<void(const std::string& message)> Report;

  // Declares support for high-DPI displays, which Qt 6 has without being told.
  static void _SetSupportsHiDPI(bool /*supported*/) {}
};

// The registered application object; NilObjectException if there is none.
Application& App();
// Registers the object, which must outlive the run; NilObjectException if there is no run.
void RegisterApplication(Application& application);

// Ends the event loop, and the process then ends with the given status. Handlers that wait in the
// gate are dropped, and the windows that are open get no Event_Close. NilObjectException if there
// is no run.
void Quit(int status);

}  // namespace fundlet
