#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <string>

namespace fundlet {

// Every event enters the program through the gate. Commands, presses of buttons, activations and
// requests to close run one at a time: while a handler runs, the others wait in a queue. Events
// that the running handler causes itself (a change of focus, a key, a new size) run inside it. The
// gate catches each exception that leaves a handler and reports it to the user, so that none passes
// through Qt.
class ProgramGate {
 public:
  // Runs the handler now or, if another one is running, after it. `command` is the command's name
  // for a report of its failure; it is empty for events that have no name for the user.
  void Enter(const std::string& command, std::function<void()> handler);
  // Runs the handler now, inside the running one if there is one: for an event that the running
  // handler causes.
  void EnterWithin(const std::function<void()>& handler);

  bool Busy() const { return depth_ > 0; }  // whether a handler is running

  struct Hooks {
    std::function<void(const std::string& message)> report;  // shows a failure; may not be empty
    std::function<void()> entering;      // before each handler that no other handler causes
    std::function<void()> update_menus;  // the queue is empty, and a handler came through Enter
    std::function<void()> idle;          // the queue is empty
  };
  void SetHooks(Hooks hooks) { hooks_ = std::move(hooks); }
  // The program is ending: drops the queue, and refuses what enters from now on.
  void Shut();
  bool IsShut() const { return shut_; }

 private:
  struct Entry {
    std::string command;
    std::function<void()> handler;
    bool updates_menus;
  };

  void Run(Entry entry);
  void RunGuarded(const std::string& command, const std::function<void()>& handler);
  void RunQueue();
  void Report(const std::string& command, const std::exception_ptr& failure) noexcept;

  std::deque<Entry> queue_;
  Hooks hooks_;
  int depth_ = 0;
  bool shut_ = false;
};

}  // namespace fundlet
