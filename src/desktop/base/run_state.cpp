#include "desktop/base/run_state.h"

#include "services/exceptions.h"

namespace fundlet {

RunState* RunState::current_ = nullptr;

RunState::RunState() { current_ = this; }
RunState::~RunState() { current_ = nullptr; }

RunState& RunState::Current() {
  if (current_ == nullptr) throw NilObjectException("The program has not started yet.");
  return *current_;
}

void RunState::DestroyEntries() {
  while (!entries_.empty()) {
    const auto latest = std::move(entries_.back());
    entries_.pop_back();
  }
}

}  // namespace fundlet
