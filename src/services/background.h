#pragma once

// A long computation calls the yield regularly, so that the window stays alive, and checks whether
// the user has cancelled it. Both cost next to nothing. src/desktop installs the background task
// and sets the flag; without it neither has an effect.
namespace fundlet {

namespace background {

inline int countdown = 1;  // yields until the task is called again
inline bool cancelled = false;

void CallTask();  // calls the background task, if there is one, and sets countdown anew

}  // namespace background

// The background task, called by some of the yields, which let its exceptions through. It returns
// the number of yields, at least 1, after which it is called again. Null: no task.
using BackgroundTask = int (*)();
void SetBackgroundTask(BackgroundTask task);

// The yield: a decrement and a branch, and once in a while a call of the background task.
inline void RuntimeBackgroundTask() {
  if (--background::countdown <= 0) background::CallTask();
}

// True if the user has cancelled the computation in progress.
inline bool UserCancelled() { return background::cancelled; }

// Sets the flag when the user cancels; clears it before a new computation.
inline void SetUserCancelled(bool cancelled) { background::cancelled = cancelled; }

}  // namespace fundlet
