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
struct DialogStack : std::vector<QDialog*> {};

DialogStack& OpenDialogs() { return RunState::Of<DialogStack>(); }

// Whether Windows shows the dialog. Qt opens such a dialog only in QDialog::exec(), and only if it
// is modal.
bool IsShownByWindows(const QDialog& dialog) {
  const auto* files = qobject_cast<const QFileDialog*>(&dialog);
  return QGuiApplication::platformName() == "windows" && files != nullptr &&
         !files->testOption(QFileDialog::DontUseNativeDialog);
}

// Shows the dialog without Qt's modality, until it is finished.
void RunOwnLoop(QDialog& dialog) {
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, [&] {
    BlockingDialog::Dismiss(&dialog);
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

}  // namespace

void BlockingDialog::Run(QDialog& dialog) {
  OpenDialogs().push_back(&dialog);
  if (IsShownByWindows(dialog)) {
    dialog.exec();
  } else {
    RunOwnLoop(dialog);
  }
  OpenDialogs().pop_back();
  QWidget* parent = dialog.parentWidget();
  if (auto* window = dynamic_cast<NativeWindow*>(parent)) {
    window->Activate();
  } else if (parent != nullptr) {
    parent->activateWindow();
  }
}

QSize BlockingDialog::LargestSize(const QWidget& dialog) {
  constexpr QSize kFrame(4, 40);  // at least that of every desktop
  return dialog.screen()->availableSize() - kFrame;
}

bool BlockingDialog::IsOpen() { return !OpenDialogs().empty(); }

namespace {

// Whether a key that is held down would answer the dialog in front, which nobody can have read yet.
// A message has no other use for keys; in the save dialog they may be typed.
bool IsHeldAnswer(const QDialog& front, const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::ShortcutOverride) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  const bool answers = qobject_cast<const QMessageBox*>(&front) != nullptr ||
                       key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
                       key.key() == Qt::Key_Escape || key.modifiers().testFlag(Qt::AltModifier);
  return key.isAutoRepeat() && answers;
}

}  // namespace

bool BlockingDialog::Blocks(QObject* object, const QEvent& event) {
  if (!IsOpen()) return false;
  const DialogStack& dialogs = OpenDialogs();
  QDialog* front = dialogs.back();
  QWidget* receiver = NativeWindow::TopLevelOf(object);
  if (receiver == front) return IsHeldAnswer(*front, event);
  const bool is_beneath = dynamic_cast<NativeWindow*>(receiver) != nullptr ||
                          std::find(dialogs.begin(), dialogs.end(), receiver) != dialogs.end();
  if (!is_beneath || event.type() == QEvent::Close || OwnFrame::IsOnTitle(object, event)) {
    return false;
  }
  if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::KeyPress) {
    front->raise();
    front->activateWindow();
  }
  return true;
}

void BlockingDialog::Dismiss(const QWidget* owner) {
  const std::vector<QDialog*> from_front(OpenDialogs().rbegin(), OpenDialogs().rend());
  for (QDialog* dialog : from_front) {
    if (owner == nullptr || dialog->parentWidget() == owner) dialog->reject();
  }
}

}  // namespace fundlet
