#pragma once

#include "desktop/run/runtime.h"

namespace fundlet {

// The application object. It has no behaviour of its own: the main window's opening starts
// everything.
class MyApplication : public Application {
 public:
  // The steps of the start: before Qt is there, and after.
  static void _EarlyStartup();
  static void _LateStartup();

 private:
  static void _NewAppInstance();
  static void _MakeDefaultView();
};

// Runs the program from its start to its end, and gives the exit status.
int RunFundlet(const char* program);

}  // namespace fundlet
