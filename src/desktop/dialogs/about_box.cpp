#include "desktop/dialogs/about_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QIcon>

#include "desktop/dialogs/message_box.h"
#include "desktop/windows/native_window.h"
#include "desktop/windows/window.h"

namespace fundlet {

namespace {

constexpr int kPictureSize = 64;
constexpr int kTextWidth = 160;

}  // namespace

void ShowAboutBox() {
  Window* window = Window::Front();
  const QString name = QApplication::applicationName();
  MessageBox box(window != nullptr ? &window->Native() : nullptr, QMessageBox::NoIcon, name);
  box.setWindowTitle("About " + name);
  box.setInformativeText("Version " + QApplication::applicationVersion());
  box.setIconPixmap(QApplication::windowIcon().pixmap(kPictureSize));
  box.AddOnlyButton();
  // Wide enough for the title to be read.
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid != nullptr) grid->setColumnMinimumWidth(grid->columnCount() - 1, kTextWidth);
  Window::RunDialog(box, window);
}

}  // namespace fundlet
