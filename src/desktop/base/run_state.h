#pragma once

#include <memory>
#include <optional>
#include <typeindex>
#include <utility>
#include <vector>

#include "desktop/base/program_gate.h"
#include "services/exceptions.h"

namespace fundlet {

class Application;

// All state with the lifetime of one run. The Runtime owns it; there is one at a time. The modules
// above keep what they need for a run as entries, by their own types, which are not known here.
class RunState {
 public:
  RunState() { current_ = this; }
  ~RunState() { current_ = nullptr; }
  RunState(const RunState&) = delete;
  RunState& operator=(const RunState&) = delete;

  // The current run's state; NilObjectException if there is none.
  static RunState& Current() {
    if (current_ != nullptr) return *current_;
    throw NilObjectException("The program has not started yet.");
  }

  // The run's one object of the type; null if it has not been made or there is no run.
  template <typename Entry>
  static Entry* Find() {
    if (current_ == nullptr) return nullptr;
    for (const auto& [type, entry] : current_->entries_) {
      if (type == typeid(Entry)) return static_cast<Entry*>(entry.get());
    }
    return nullptr;
  }
  // The same object, made at the first call; NilObjectException if there is no run.
  template <typename Entry>
  static Entry& Of() {
    if (auto* found = Find<Entry>()) return *found;
    const auto made = std::make_shared<Entry>();
    Current().entries_.emplace_back(typeid(Entry), made);
    return *made;
  }

  // Destroys the entries, the latest first. To be called while the QApplication exists.
  void DestroyEntries() {
    while (!entries_.empty()) {
      const auto latest = std::move(entries_.back());
      entries_.pop_back();
    }
  }

  Application* application = nullptr;
  std::optional<int> end_status;  // set by Quit
  ProgramGate gate;

 private:
  inline static RunState* current_ = nullptr;

  std::vector<std::pair<std::type_index, std::shared_ptr<void>>> entries_;
};

inline ProgramGate& Gate() { return RunState::Current().gate; }

}  // namespace fundlet
