#pragma once

#include "desktop/run/runtime.h"

namespace fundlet {

// The application object. It has no behaviour of its own; opening the main window starts the
// program's work.
class MyApplication : public Application {
 public:
  // The steps of the start, before and after the QApplication is made.
  static void _EarlyStartup();
  static void _LateStartup();

 private:
  static void _NewAppInstance();
  static void _MakeDefaultView();
};

// Runs the program and returns its exit status. `program` is the name by which the process was
// started; it must not be null.
int RunFundlet(const char* program);

}  // namespace fundlet
