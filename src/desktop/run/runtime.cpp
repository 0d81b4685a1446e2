#include "desktop/run/runtime.h"

#include <cstdio>
#include <cstdlib>
#include <future>
#include <map>
#include <utility>

#include <QApplication>
#include <QFontDatabase>

#include "desktop/accessibility/screen_reader_notifier.h"
#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"
#include "desktop/drawing/program_style.h"
#include "desktop/run/held_input.h"
#include "desktop/run/key_rules.h"

namespace fundlet {

namespace {

struct ImplicitInstances : std::map<std::string, std::unique_ptr<Window>> {};

// What Qt says while the QApplication is made.
struct {
  QStringList held;
  QString cause;  // why the platform plug-in cannot open a window
} messages;

[[noreturn]] void GiveUp() {
#ifdef Q_OS_LINUX
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
    messages.cause = "there is no desktop, because neither DISPLAY nor WAYLAND_DISPLAY is set";
  }
#endif
  std::fprintf(stderr, "%s: The window cannot be opened: %s\n", App().Name.c_str(),
               qPrintable(messages.cause));
  std::_Exit(1);
}

// A plug-in says why it fails, and then Qt that the plug-in could not be loaded.
void HoldMessage(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type == QtFatalMsg) GiveUp();
  if (messages.cause.isEmpty() && qstrcmp(context.category, "qt.qpa.plugin") == 0) {
    messages.cause = messages.held.isEmpty() ? text : messages.held.last();
  }
  messages.held.append(text);
}

// Holds Qt's messages back while the QApplication is made. If Qt gives up, because no platform
// plug-in can open a window, the program ends with status 1 and one line that names the cause; Qt
// would print them all, advise to reinstall the program, and call abort().
std::unique_ptr<QApplication> MakeApplication(int& argument_count, char** arguments) {
  messages = {};
  const QtMessageHandler previous = qInstallMessageHandler(&HoldMessage);
  auto application = std::make_unique<QApplication>(argument_count, arguments);
  qInstallMessageHandler(previous);
  for (const QString& text : messages.held) qWarning("%s", qPrintable(text));
  return application;
}

}  // namespace

// Opening a window may show a message, whose answer may ask for the instance again.
Window& ImplicitInstance(const std::string& class_name,
                         const std::function<std::unique_ptr<Window>()>& make) {
  std::unique_ptr<Window>& instance = RunState::Of<ImplicitInstances>()[class_name];
  if (instance) return *instance;
  instance = make();
  instance->Open();
  instance->Show();
  return *instance;
}

struct Runtime::Parts {
  explicit Parts(std::string name) : program(std::move(name)) {}

  RunState state;  // destroyed last
  std::string program;
  int argument_count = 1;
  char* arguments[2] = {program.data(), nullptr};
  std::unique_ptr<QApplication> application;
  std::future<void> font_search;  // its destructor waits for the search
};

Runtime::Runtime(std::string program) : parts_(std::make_unique<Parts>(std::move(program))) {}

Runtime::~Runtime() {
  parts_->state.gate.Shut();
  parts_->state.DestroyEntries();
}

void Runtime::Start(const std::function<void()>& early, const std::function<void()>& late) {
  early();
#ifndef Q_OS_MACOS
  // Its controls fit the heights in the layout.
  QApplication::setStyle(new ProgramStyle);
#endif
  parts_->application = MakeApplication(parts_->argument_count, parts_->arguments);
  // Qt's search for fonts would delay the first window, so it runs on a thread of its own. All code
  // of the program runs on this thread.
  parts_->font_search = std::async([] { QFontDatabase::families(); });
  QApplication::setApplicationName(ToQt(App().Name));
  QApplication::setApplicationVersion(ToQt(App().Version));
  QApplication::setDesktopFileName(ToQt(App().DesktopFile));
  QApplication::setQuitOnLastWindowClosed(false);
#ifdef Q_OS_WIN
  RunState::Of<LostReleases>();
#endif
  auto& held_input = RunState::Of<HeldInput>();
  RunState::Of<ScreenReaderNotifier>();
  const auto commit_composition = [] {
    const Window* front = Window::Front();
    if (front != nullptr && front->Focused() != nullptr) front->Focused()->CommitComposition();
  };
  const auto update_menus = [] {
    if (Window* front = Window::Front(); front != nullptr) front->UpdateMenuItems();
  };
  Gate().SetHooks({App().Report, commit_composition, update_menus,
                   [&held_input] { held_input.ScheduleReplay(); }});
  Gate().Enter("Start", late);
}

int Runtime::Run() {
  // Qt ignores a quit requested before exec().
  if (const std::optional<int> status = parts_->state.end_status) return *status;
  if (Window::Front() == nullptr) return 1;
  return QApplication::exec();
}

}  // namespace fundlet
