#include "desktop/modal_dialog.h"

#include <algorithm>
#include <vector>

#include <QDialog>
#include <QEvent>
#include <QEventLoop>

#include "desktop/native_window.h"
#include "desktop/window.h"

namespace fundlet {

namespace {

// The open dialogs, the latest last.
std::vector<QDialog*>& OpenDialogs() {
  static std::vector<QDialog*> dialogs;
  return dialogs;
}

// A dialog while it is open.
class OpenDialog {
 public:
  explicit OpenDialog(QDialog& dialog) { OpenDialogs().push_back(&dialog); }
  ~OpenDialog() { OpenDialogs().pop_back(); }
  OpenDialog(const OpenDialog&) = delete;
  OpenDialog& operator=(const OpenDialog&) = delete;
};

}  // namespace

void ModalDialog::Run(QDialog& dialog, Window* owner) {
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  const OpenDialog open(dialog);
  dialog.setWindowModality(Qt::NonModal);
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
  loop.exec();
  if (owner != nullptr) owner->DialogClosed();
}

bool ModalDialog::IsOpen() { return !OpenDialogs().empty(); }

bool ModalDialog::Blocks(QObject* object, const QEvent& event) {
  if (!IsOpen() || event.type() == QEvent::Close || NativeWindow::Of(object) == nullptr) {
    return false;
  }
  if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::KeyPress) {
    OpenDialogs().back()->raise();
    OpenDialogs().back()->activateWindow();
  }
  return true;
}

void ModalDialog::DismissAll() {
  std::vector<QDialog*> dialogs = OpenDialogs();
  std::reverse(dialogs.begin(), dialogs.end());
  for (QDialog* dialog : dialogs) dialog->reject();
}

}  // namespace fundlet
