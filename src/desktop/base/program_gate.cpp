#include "desktop/base/program_gate.h"

#include <cstdio>
#include <utility>

#include "services/background.h"
#include "services/exceptions.h"

namespace fundlet {

namespace {

std::string Reason(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const RuntimeException& error) {
    return error.what();
  } catch (const std::bad_alloc&) {
    return "There is not enough memory. Close other programs and try again.";
  } catch (const std::exception& error) {
    return "The program met a fault of its own (" + std::string(error.what()) + ").";
  } catch (...) {
    return "The program met a fault of its own.";
  }
}

}  // namespace

void ProgramGate::Report(const std::string& what, const std::exception_ptr& failure) noexcept {
  try {
    const std::string command = what.empty() ? what : "“" + what + "” could not be carried out. ";
    hooks_.report(command + Reason(failure));
  } catch (...) {
    std::fputs("A failure of the program could not be shown.\n", stderr);
  }
}

void ProgramGate::RunGuarded(const std::string& what, const std::function<void()>& handler) {
  ++depth_;
  try {
    handler();
  } catch (...) {
    Report(what, std::current_exception());
  }
  --depth_;
}

void ProgramGate::Enter(const std::string& what, std::function<void()> handler) {
  Run({what, std::move(handler), true});
}

void ProgramGate::EnterWithin(const std::function<void()>& handler) {
  if (Busy()) {
    RunGuarded("", handler);
  } else {
    Run({"", handler, false});
  }
}

void ProgramGate::Run(Entry entry) {
  if (shut_) return;
  waiting_.push_back(std::move(entry));
  if (!Busy()) RunWaiting();
}

void ProgramGate::RunWaiting() {
  bool command_ran = false;
  while (!waiting_.empty()) {
    const Entry entry = std::move(waiting_.front());
    waiting_.pop_front();
    SetUserCancelled(false);
    RunGuarded(entry.what, entry.handler);
    command_ran = command_ran || entry.is_command;
  }
  if (command_ran && !shut_ && hooks_.commands_done) hooks_.commands_done();
  if (hooks_.idle) hooks_.idle();
}

void ProgramGate::Shut() {
  shut_ = true;
  waiting_.clear();
}

}  // namespace fundlet
