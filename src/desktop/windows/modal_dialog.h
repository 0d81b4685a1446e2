#pragma once

class QDialog;
class QEvent;
class QObject;
class QSize;
class QWidget;

namespace fundlet {

// A dialog that the user has to answer before working on in the program's windows. It is not modal
// (Qt::ApplicationModal), because Qt then refuses a window beneath to be closed: here the
// windows take no input while it is open, but closing one dismisses the dialog and goes ahead. Only
// a dialog that Windows itself shows keeps the windows beneath from being closed, as it does in
// every program.
class ModalDialog {
 public:
  // Shows the dialog, which belongs to its parentWidget, and returns when it has been answered.
  static void Run(QDialog& dialog);

  // The largest size that a dialog may have on its screen, without the desktop's frame.
  static QSize LargestSize(const QWidget& dialog);

  static bool IsOpen();
  // Whether input to the object has to wait for a dialog; then the dialog is brought to the front.
  // Also whether it is a key, held down since before, that would answer the dialog unread.
  static bool Blocks(QObject* object, const QEvent& event);
  // Answers the open dialogs of a window as their close boxes do; null stands for those of all.
  static void Dismiss(const QWidget* owner);
};

}  // namespace fundlet
