#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <string>

namespace fundlet {

// Through here every event enters the program. A command, a press of a button, an activation and a
// request to close run one at a time: what comes while a handler runs waits until it has returned.
// What the running handler itself brings about (the focus, a key, a new size) is handled within it.
// An exception that leaves a handler ends here, in a report to the user, and never passes through
// Qt.
class ProgramGate {
 public:
  // Runs the handler now, or after the one that is running. `what` names the command for the
  // user, empty for what they have not asked for by a name.
  void Enter(const std::string& what, std::function<void()> handler);
  // Runs the handler now, inside the one that is running if there is one: for the events that the
  // running handler causes and waits for.
  void EnterWithin(const std::function<void()>& handler);

  bool Busy() const { return depth_ > 0; }
  // What the gate asks of the desktop around it; each may be empty.
  struct Hooks {
    std::function<void(const std::string& message)> report;  // tells the user of a failure
    std::function<void()> commands_done;  // the waiting handlers have run, a command among them
    std::function<void()> idle;           // the last waiting handler has returned
  };
  void SetHooks(Hooks hooks) { hooks_ = std::move(hooks); }
  // The program is ending: nothing that waits is run any more.
  void Shut();
  bool IsShut() const { return shut_; }

 private:
  struct Entry {
    std::string what;
    std::function<void()> handler;
    bool is_command;  // after it, the menus show anew what can be chosen
  };

  void Run(Entry entry);
  void RunGuarded(const std::string& what, const std::function<void()>& handler);
  void RunWaiting();
  void Report(const std::string& what, const std::exception_ptr& failure) noexcept;

  std::deque<Entry> waiting_;
  Hooks hooks_;
  int depth_ = 0;
  bool shut_ = false;
};

}  // namespace fundlet
