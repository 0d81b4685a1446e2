#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desktop/base/application.h"
#include "desktop/windows/window.h"

namespace fundlet {

// The one window of a class, by the full name of the class. At the first call `make` makes it; it
// is opened, shown, and kept until the run ends.
Window& ImplicitInstance(const std::string& class_name,
                         const std::function<std::unique_ptr<Window>()>& make);

// One run of the program in the desktop environment; there is one at a time.
class Runtime {
 public:
  // `program` is the name of the executable file, as the process was started with it.
  explicit Runtime(std::string program);
  ~Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;

  // Starts the program. `early` runs before the QApplication is made and registers the Application
  // object; `late` runs after, and opens the first window.
  void Start(const std::function<void()>& early, const std::function<void()>& late);
  // Delivers events until Quit, and returns the exit status; 1 if no window is open.
  int Run();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace fundlet
