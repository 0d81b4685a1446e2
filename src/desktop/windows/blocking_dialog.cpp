#include "desktop/windows/blocking_dialog.h"

#include <algorithm>
#include <vector>

#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QFileDialog>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QWindow>

#include "desktop/base/run_state.h"
#include "desktop/drawing/own_frame.h"
#include "desktop/windows/native_window.h"

namespace fundlet {

namespace {

// The dialogs that are open, the latest last.
struct DialogStack {
  std::vector<QDialog*> dialogs;
};

std::vector<QDialog*>& OpenDialogs() { return RunState::Of<DialogStack>().dialogs; }

// A dialog while it is open.
class OpenDialog {
 public:
  explicit OpenDialog(QDialog& dialog) { OpenDialogs().push_back(&dialog); }
  ~OpenDialog() { OpenDialogs().pop_back(); }
  OpenDialog(const OpenDialog&) = delete;
  OpenDialog& operator=(const OpenDialog&) = delete;
};

// Whether Windows shows the dialog. Qt opens such a dialog only in QDialog::exec(), and only if it
// is modal.
bool IsShownByWindows(const QDialog& dialog) {
  const auto* files = qobject_cast<const QFileDialog*>(&dialog);
  return QGuiApplication::platformName() == "windows" && files != nullptr &&
         !files->testOption(QFileDialog::DontUseNativeDialog);
}

}  // namespace

void BlockingDialog::Run(QDialog& dialog) {
  const OpenDialog open(dialog);
  if (IsShownByWindows(dialog)) {
    dialog.exec();
    return;
  }
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, [&] {
    Dismiss(&dialog);
    loop.quit();
  });
  // The icon is otherwise read after a window has been painted; a message at the start comes
  // before.
  NativeWindow::ReadProgramIcon();
  dialog.setWindowModality(Qt::NonModal);
  dialog.show();
  OwnFrame::AddTo(dialog);
  dialog.raise();
  dialog.activateWindow();
  loop.exec();
}

QSize BlockingDialog::LargestSize(const QWidget& dialog) {
  constexpr QSize kFrame(4, 40);  // at least that of every desktop
  return dialog.screen()->availableSize() - kFrame;
}

bool BlockingDialog::IsOpen() { return !OpenDialogs().empty(); }

namespace {

// Whether the object is one of the program's windows, or a dialog beneath another dialog.
bool IsBeneath(QObject* object) {
  if (NativeWindow::Of(object) != nullptr) return true;
  const auto* widget = qobject_cast<QWidget*>(object);
  return std::any_of(OpenDialogs().begin(), OpenDialogs().end() - 1, [&](const QDialog* dialog) {
    return widget != nullptr ? widget->window() == dialog : object == dialog->windowHandle();
  });
}

// Whether a key that is held down would answer the dialog in front, which nobody can have read yet.
// A message has no other use for keys; in the save dialog they may be typed.
bool IsHeldAnswer(QObject* object, const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  const QDialog* dialog = OpenDialogs().back();
  const auto* widget = qobject_cast<QWidget*>(object);
  const bool to_dialog =
      widget != nullptr ? widget->window() == dialog : object == dialog->windowHandle();
  const bool answers = qobject_cast<const QMessageBox*>(dialog) != nullptr ||
                       key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
                       key.key() == Qt::Key_Escape || key.modifiers().testFlag(Qt::AltModifier);
  return key.isAutoRepeat() && to_dialog && answers;
}

}  // namespace

bool BlockingDialog::Blocks(QObject* object, const QEvent& event) {
  if (IsOpen() && IsHeldAnswer(object, event)) return true;
  if (!IsOpen() || event.type() == QEvent::Close || !IsBeneath(object)) return false;
  if (OwnFrame::IsOnTitle(object, event)) return false;
  if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::KeyPress) {
    OpenDialogs().back()->raise();
    OpenDialogs().back()->activateWindow();
  }
  return true;
}

void BlockingDialog::Dismiss(const QWidget* owner) {
  std::vector<QDialog*> dialogs = OpenDialogs();
  std::reverse(dialogs.begin(), dialogs.end());
  for (QDialog* dialog : dialogs) {
    if (owner == nullptr || dialog->parentWidget() == owner) dialog->reject();
  }
}

}  // namespace fundlet
