#pragma once

#include <deque>
#include <exception>
#include <functional>
#include <string>

namespace fundlet {

// The one place through which every event enters the program. One handler of the program runs at a
// time: what comes while it runs waits until it has returned. An exception that leaves a handler
// ends here, in the last-resort alert, and never passes through the toolkit.
class ProgramGate {
 public:
  static ProgramGate& Instance();

  // Runs the handler now, or after the one that is running. `what` names the command for the
  // user, empty for what is no command of theirs.
  void Enter(const std::string& what, std::function<void()> handler);
  // Runs the handler now, inside the one that is running if there is one: for the events that the
  // running handler causes and waits for.
  void EnterWithin(const std::string& what, const std::function<void()>& handler);

  bool Busy() const { return depth_ > 0; }
  // Called whenever the last waiting handler has returned.
  void SetIdleHandler(std::function<void()> handler) { idle_handler_ = std::move(handler); }
  // The program is ending: nothing that waits is run any more.
  void Shut();
  void Reopen();

 private:
  struct Entry {
    std::string what;
    std::function<void()> handler;
    bool is_command;  // after it, the menus show anew what can be chosen
  };

  void Run(Entry entry);
  void RunGuarded(const std::string& what, const std::function<void()>& handler);
  void RunWaiting();

  std::deque<Entry> waiting_;
  std::function<void()> idle_handler_;
  int depth_ = 0;
  bool shut_ = false;
};

}  // namespace fundlet
