#pragma once

// What a long computation owes the rest of the program: a yield now and then, and an ear for the
// user's wish to stop. Both cost a computation next to nothing; a desktop fills them in.
namespace fundlet {

namespace background {

inline int countdown = 1;  // yields until the task is called again
inline bool cancelled = false;

void CallTask();

}  // namespace background

// What is called once in a while from the yields: it gives the number of yields, at least 1, to
// pass before it is called again. Null takes the present one away.
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
