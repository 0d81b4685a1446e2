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

void ProgramGate::Report(const std::string& command, const std::exception_ptr& failure) noexcept {
  try {
    const std::string failed =
        command.empty() ? "" : "“" + command + "” could not be carried out. ";
    hooks_.report(failed + Reason(failure));
  } catch (...) {
    std::fputs("A failure of the program could not be shown.\n", stderr);
  }
}

void ProgramGate::RunGuarded(const std::string& command, const std::function<void()>& handler) {
  ++depth_;
  try {
    handler();
  } catch (...) {
    Report(command, std::current_exception());
  }
  --depth_;
}

void ProgramGate::Enter(const std::string& command, std::function<void()> handler) {
  Run({command, std::move(handler), true});
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
  queue_.push_back(std::move(entry));
  if (!Busy()) RunQueue();
}

void ProgramGate::RunQueue() {
  bool update_menus = false;
  while (!queue_.empty()) {
    const Entry entry = std::move(queue_.front());
    queue_.pop_front();
    SetUserCancelled(false);
    RunGuarded(entry.command, [&] {
      if (hooks_.entering) hooks_.entering();
      entry.handler();
    });
    update_menus = update_menus || entry.updates_menus;
  }
  if (update_menus && !shut_ && hooks_.update_menus) hooks_.update_menus();
  if (hooks_.idle) hooks_.idle();
}

void ProgramGate::Shut() {
  shut_ = true;
  queue_.clear();
}

}  // namespace fundlet
