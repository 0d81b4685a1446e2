#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

class QKeyEvent;

namespace fundlet {

// Offers a key press to the window's shortcuts, as Qt does before it delivers a key. Returns
// whether one has used it.
bool ChoosesShortcut(QObject& window, const QKeyEvent& key);

// Changes what Qt does with two kinds of key presses, in every window and dialog. A key with Alt or
// Meta enters no text, because it is a command. Control with a key of the digits' row is also the
// shortcut of its digit on layouts that have the digits on Shift. Returns whether the press has
// been used and is not to be delivered.
bool ApplyKeyRules(QObject& receiver, QKeyEvent& press);

// Supplies, on Windows, the key releases that Qt has missed, such as those of the keys that open
// the system's save dialog, which go to that dialog. Until Qt has seen the release of a key, each
// press of the key counts as an auto-repeat, which answers no message and runs no shortcut. Windows
// says with each press whether the key was down before. Each run has one.
class LostReleases : public QAbstractNativeEventFilter {
 public:
  LostReleases();

  // Sends WM_KEYUP before the press of a key that was up. Qt ignores the release of a key that it
  // does not know to be down.
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
};

}  // namespace fundlet
