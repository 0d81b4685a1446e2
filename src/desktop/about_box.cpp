#include "desktop/about_box.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>

#include "desktop/modal_dialog.h"
#include "desktop/native_window.h"
#include "desktop/window.h"

namespace fundlet {

namespace {

constexpr int kPictureSize = 64;

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
  ModalDialog::Run(box, window);
}

}  // namespace fundlet
