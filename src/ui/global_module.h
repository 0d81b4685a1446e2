#pragma once

#include <memory>
#include <string>

namespace fundlet {

class aHelpWindow;

// The few things that the windows share.
struct GlobalModule {
  // Shows a message with the alert sound over the frontmost window, and returns when the user has
  // dismissed it. All that the program has to tell goes through here; the save dialog asks by
  // itself whether it may replace a file.
  static void AlertBox(const std::string& message);

  // The start values, and the end of what the module holds.
  static void Initialise();
  static void Release();

  static bool HelpShowing;                          // a Help window is open
  static std::shared_ptr<aHelpWindow>& HelpWindow;  // the one made last, open or closed
};

}  // namespace fundlet
