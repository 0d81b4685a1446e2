#pragma once

#include <QAbstractNativeEventFilter>

namespace fundlet {

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
