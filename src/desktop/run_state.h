#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/program_gate.h"

class QDialog;

namespace fundlet {

class Application;
class HeldInput;
class ScreenReader;
class Window;

// What holds from the start of a run to its end, all in one place. The Runtime owns it.
struct RunState {
  RunState();
  ~RunState();
  RunState(const RunState&) = delete;
  RunState& operator=(const RunState&) = delete;

  // That of the run; NilObjectException where there is none.
  static RunState& Now();

  Application* application = nullptr;
  std::optional<int> end_status;  // once the end has been asked for
  ProgramGate gate;
  std::vector<Window*> windows;   // visible, the frontmost last
  std::vector<QDialog*> dialogs;  // open, the latest last
  std::string save_folder;        // where the last file of this run went, empty for none
  // What the run owns alone; a shared pointer takes types that are not known here.
  std::map<std::string, std::shared_ptr<Window>> implicit_instances;  // by their classes
  std::shared_ptr<HeldInput> held_input;
  std::shared_ptr<ScreenReader> screen_reader;
};

inline ProgramGate& Gate() { return RunState::Now().gate; }

}  // namespace fundlet
