#pragma once

class QDialog;
class QEvent;
class QObject;
class QSize;
class QWidget;

namespace fundlet {

// A dialog that blocks input to the windows and dialogs beneath it. Qt's own modality
// (Qt::ApplicationModal) would also keep a window beneath from being closed: here closing one
// dismisses the dialog. Only a dialog that Windows itself shows keeps the windows beneath from
// being closed, as it does in every program.
class BlockingDialog {
 public:
  // Shows the dialog, which belongs to its parentWidget(), and returns when it is finished. The
  // dialogs over it are then dismissed, too, and the parent is activated: if it is a Window, after
  // the handler that has called this.
  static void Run(QDialog& dialog);

  // The size in pixels that a dialog may have at most, so that it fits its screen with its frame.
  static QSize LargestSize(const QWidget& dialog);

  static bool IsOpen();
  // Whether to discard an event for the object, because a dialog is open: input to what lies
  // beneath it (a click or a key there raises the dialog), and the repeats of a held key that would
  // answer the dialog unread. Never a Close event.
  static bool Blocks(QObject* object, const QEvent& event);
  // Rejects the open dialogs whose parent the window is, or all open dialogs if it is null.
  static void Dismiss(const QWidget* owner);
};

}  // namespace fundlet
