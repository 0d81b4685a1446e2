#include "services/background.h"

#include <limits>

namespace fundlet {

namespace background {

namespace {

BackgroundTask task = nullptr;

}  // namespace

void CallTask() { countdown = task != nullptr ? task() : std::numeric_limits<int>::max(); }

}  // namespace background

void SetBackgroundTask(BackgroundTask task) {
  background::task = task;
  background::countdown = 1;
}

}  // namespace fundlet
