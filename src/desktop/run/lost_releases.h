#pragma once

#include <QAbstractNativeEventFilter>

namespace fundlet {

// Gives Qt, on Windows, the release of a key where Qt has missed it. Qt takes each press of a key
// for a repetition until it has seen the release, and a window that is not Qt's may have got that,
// as the system's save dialog gets those of the keys that open it; a held key answers no message,
// and a held shortcut does nothing. Windows itself says with each press whether the key was down
// before. There is one while the desktop runs.
class LostReleases : public QAbstractNativeEventFilter {
 public:
  LostReleases();

  // Sends Qt the release before a press of a key that was up. Qt passes over the release of a key
  // that it does not know to be down.
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
};

}  // namespace fundlet
