#pragma once

#include <memory>
#include <string>

namespace fundlet {

class aHelpWindow;

// The state and the one routine that all windows share.
struct GlobalModule {
  // Shows a message with the alert sound over the frontmost window, and returns when the user has
  // dismissed it. Every message of the program is shown by this function, except those of the save
  // dialog about the name being chosen.
  static void AlertBox(const std::string& message);

  // Sets the start values; releases the Help window at the end of a run.
  static void Initialise();
  static void Release();

  static bool HelpShowing;                          // whether a Help window is open
  static std::shared_ptr<aHelpWindow>& HelpWindow;  // the latest Help window, open or closed
};

}  // namespace fundlet
