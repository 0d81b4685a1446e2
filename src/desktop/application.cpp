#include "desktop/application.h"

#include <QGuiApplication>

#include "desktop/program_gate.h"
#include "services/exceptions.h"

namespace fundlet {

namespace {

Application* registered_application = nullptr;
std::optional<int> end_status;

}  // namespace

void Application::_SetSupportsHiDPI(bool supported) {
  if (!supported) return;
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

Application& App() {
  if (registered_application == nullptr) {
    throw NilObjectException("The program has not started yet.");
  }
  return *registered_application;
}

void RegisterApplication(Application& application) {
  registered_application = &application;
  end_status.reset();
}

void ForgetApplication() { registered_application = nullptr; }

void Quit(int status) {
  ProgramGate::Instance().Shut();
  end_status = status;
  QCoreApplication::exit(status);
}

std::optional<int> EndStatus() { return end_status; }

}  // namespace fundlet
