#include "desktop/dialogs/about_box.h"

#include <QApplication>
#include <QGridLayout>
#include <QIcon>
#include <QMessageBox>

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
  QMessageBox box(window != nullptr ? &window->Native() : nullptr);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle("About " + name);
  box.setText(name);
  box.setInformativeText("Version " + QApplication::applicationVersion());
  box.setIconPixmap(QApplication::windowIcon().pixmap(kPictureSize));
  box.addButton(QMessageBox::Ok);
  // Wide enough for the title to be read.
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid != nullptr) grid->setColumnMinimumWidth(grid->columnCount() - 1, kTextWidth);
  Window::RunDialog(box, window);
}

}  // namespace fundlet
