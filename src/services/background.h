#pragma once

// What a long computation does for the rest of the program: it yields now and then, and it asks
// whether the user wants it to stop. Both cost next to nothing. The desktop sets the task and tells
// of the user; without it nothing happens.
namespace fundlet {

namespace background {

inline int countdown = 1;  // yields until the task is called again
inline bool cancelled = false;

void CallTask();

}  // namespace background

// Called from the yields once in a while. It returns the number of yields, at least 1, after which
// it is to be called again. Null: no task.
using BackgroundTask = int (*)();
void SetBackgroundTask(BackgroundTask task);

// The yield: a decrement and a branch, and now and then the background task.
inline void RuntimeBackgroundTask() {
  if (--background::countdown <= 0) background::CallTask();
}

// True when the user has asked to stop the computation in progress.
inline bool UserCancelled() { return background::cancelled; }

// Says that the user has asked to stop, or that a new computation begins and nobody has yet.
inline void SetUserCancelled(bool cancelled) { background::cancelled = cancelled; }

}  // namespace fundlet
