#include "desktop/run_state.h"

#include "services/exceptions.h"

namespace fundlet {

namespace {

RunState* present = nullptr;

}  // namespace

RunState::RunState() { present = this; }
RunState::~RunState() { present = nullptr; }

RunState& RunState::Now() {
  if (present == nullptr) throw NilObjectException("The program has not started yet.");
  return *present;
}

}  // namespace fundlet
