#include "desktop/base/application.h"

#include <QCoreApplication>

#include "desktop/base/run_state.h"
#include "services/exceptions.h"

namespace fundlet {

Application& App() {
  if (Application* application = RunState::Current().application) return *application;
  throw NilObjectException("There is no application object yet.");
}

void RegisterApplication(Application& application) {
  RunState::Current().application = &application;
}

void Quit(int status) {
  Gate().Shut();
  RunState::Current().end_status = status;
  QCoreApplication::exit(status);
}

}  // namespace fundlet
