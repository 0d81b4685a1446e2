#include "desktop/modal_dialog.h"

#include <algorithm>
#include <vector>

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMessageBox>
#include <QWindow>

#include "desktop/native_window.h"
#include "desktop/own_frame.h"
#include "desktop/window.h"

namespace fundlet {

namespace {

struct Opened {
  QDialog* dialog;
  const Window* owner;
};

// The open dialogs, the latest last.
std::vector<Opened>& OpenDialogs() {
  static std::vector<Opened> dialogs;
  return dialogs;
}

// A dialog while it is open.
class OpenDialog {
 public:
  OpenDialog(QDialog& dialog, const Window* owner) { OpenDialogs().push_back({&dialog, owner}); }
  ~OpenDialog() { OpenDialogs().pop_back(); }
  OpenDialog(const OpenDialog&) = delete;
  OpenDialog& operator=(const OpenDialog&) = delete;
};

}  // namespace

void ModalDialog::Run(QDialog& dialog, Window* owner) {
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  const OpenDialog open(dialog, owner);
  dialog.setWindowModality(Qt::NonModal);
  dialog.show();
  OwnFrame::PutRound(dialog);
  dialog.raise();
  dialog.activateWindow();
  loop.exec();
  if (owner != nullptr) owner->DialogClosed();
}

bool ModalDialog::IsOpen() { return !OpenDialogs().empty(); }

namespace {

// Whether the object is one of the program's windows, or a dialog that another one lies over.
bool IsBeneath(QObject* object) {
  if (NativeWindow::Of(object) != nullptr) return true;
  const auto* widget = qobject_cast<QWidget*>(object);
  return std::any_of(OpenDialogs().begin(), OpenDialogs().end() - 1, [&](const Opened& opened) {
    return widget != nullptr ? widget->window() == opened.dialog
                             : object == opened.dialog->windowHandle();
  });
}

// Whether a key that is held down would answer the dialog in front, which nobody can have read yet.
// A message has no other use for keys; in the save dialog they may be typed.
bool IsHeldAnswer(QObject* object, const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  const QDialog* dialog = OpenDialogs().back().dialog;
  const auto* widget = qobject_cast<QWidget*>(object);
  const bool to_dialog =
      widget != nullptr ? widget->window() == dialog : object == dialog->windowHandle();
  const bool answers = qobject_cast<const QMessageBox*>(dialog) != nullptr ||
                       key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
                       key.key() == Qt::Key_Escape || key.modifiers().testFlag(Qt::AltModifier);
  return key.isAutoRepeat() && to_dialog && answers;
}

}  // namespace

bool ModalDialog::Blocks(QObject* object, const QEvent& event) {
  if (IsOpen() && IsHeldAnswer(object, event)) return true;
  if (!IsOpen() || event.type() == QEvent::Close || !IsBeneath(object)) return false;
  if (OwnFrame::Takes(object, event)) return false;
  if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::KeyPress) {
    OpenDialogs().back().dialog->raise();
    OpenDialogs().back().dialog->activateWindow();
  }
  return true;
}

void ModalDialog::Dismiss(const Window* owner) {
  std::vector<Opened> dialogs = OpenDialogs();
  std::reverse(dialogs.begin(), dialogs.end());
  for (const Opened& opened : dialogs) {
    if (owner == nullptr || opened.owner == owner) opened.dialog->reject();
  }
}

}  // namespace fundlet
