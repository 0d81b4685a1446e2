#include "desktop/about_box.h"

#include <QApplication>
#include <QMessageBox>

#include "desktop/native_window.h"
#include "desktop/window.h"

namespace fundlet {

void ShowAboutBox() {
  Window* window = Window::Front();
  const QString name = QApplication::applicationName();
  QMessageBox::about(window != nullptr ? &window->Native() : nullptr, "About " + name,
                     name + "\nVersion " + QApplication::applicationVersion());
  if (window != nullptr) window->DialogClosed();
}

}  // namespace fundlet
