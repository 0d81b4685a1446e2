#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desktop/base/application.h"
#include "desktop/windows/window.h"

namespace fundlet {

// The one window of a class. If there is none yet, it is made by `make`, opened and shown, and kept
// under the full name of its class until the run ends.
Window& ImplicitInstance(const std::string& class_name,
                         const std::function<std::unique_ptr<Window>()>& make);

// The desktop from its start to its end; there is one at a time.
class Runtime {
 public:
  // `program` is the name of the executable file, as the process was started with it.
  explicit Runtime(std::string program);
  ~Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;

  // Brings the program up: `early` runs before QApplication is there and registers the
  // application object, `late` when it is there, and opens the first window.
  void Start(const std::function<void()>& early, const std::function<void()>& late);
  // Delivers events until Quit, and gives the exit status; 1 where the start left no window.
  int Run();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace fundlet
