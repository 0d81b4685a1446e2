#include "desktop/runtime.h"

#include <future>
#include <utility>

#include <QApplication>
#include <QFontDatabase>

#include "desktop/held_input.h"
#include "desktop/program_style.h"
#include "desktop/qt_text.h"
#include "desktop/run_state.h"
#include "desktop/screen_reader.h"

namespace fundlet {

Window& ImplicitInstance(const std::string& class_name,
                         const std::function<std::unique_ptr<Window>()>& make) {
  std::shared_ptr<Window>& instance = RunState::Now().implicit_instances[class_name];
  if (!instance) instance = make();
  return *instance;
}

struct Runtime::Parts {
  explicit Parts(std::string name) : program(std::move(name)) {}

  RunState state;  // goes last
  std::string program;
  int argument_count = 1;
  char* arguments[2] = {program.data(), nullptr};
  std::unique_ptr<QApplication> application;
  std::future<void> font_search;  // waits for its end when it goes
};

Runtime::Runtime(std::string program) : parts_(std::make_unique<Parts>(std::move(program))) {}

Runtime::~Runtime() {
  Gate().Shut();
  parts_->state.implicit_instances.clear();
  parts_->state.screen_reader.reset();
  parts_->state.held_input.reset();
}

void Runtime::Start(const std::function<void()>& early, const std::function<void()>& late) {
  early();
#ifdef Q_OS_LINUX
  // The style whose controls fit the heights of the layout.
  QApplication::setStyle(new ProgramStyle);
#endif
  parts_->application = std::make_unique<QApplication>(parts_->argument_count, parts_->arguments);
  // Qt's search for fonts takes a good part of the opening, and runs beside the connection
  // to the desktop from here on. Nothing of the program's own leaves this thread.
  parts_->font_search = std::async([] { QFontDatabase::families(); });
  QApplication::setApplicationName(ToQt(App().Name));
  QApplication::setApplicationVersion(ToQt(App().Version));
  QApplication::setDesktopFileName(ToQt(App().DesktopFile));
  QApplication::setQuitOnLastWindowClosed(false);
  parts_->state.held_input = std::make_shared<HeldInput>();
  parts_->state.screen_reader = std::make_shared<ScreenReader>();
  const auto show_enabling = [] {
    if (Window* front = Window::Front(); front != nullptr) front->EnableMenuItems();
  };
  Gate().SetHooks(
      {App().Report, show_enabling, [this] { parts_->state.held_input->ScheduleReplay(); }});
  Gate().Enter("Start", late);
}

int Runtime::Run() {
  // Qt forgets an end that was asked for before its loop runs.
  if (const std::optional<int> status = parts_->state.end_status) return *status;
  if (Window::Front() == nullptr) return 1;
  return QApplication::exec();
}

}  // namespace fundlet
