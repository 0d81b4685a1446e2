#pragma once

#include <QObject>

class QKeyEvent;

namespace fundlet {

// Sends a key press to the window's shortcuts, as Qt does with the keys of the desktop. True if one
// of them, or a widget that overrides them, has used it.
bool ChoosesShortcut(QObject& window, const QKeyEvent& key);

// What holds for keys in every window and dialog, and Qt does not see to. A key with Alt or Meta is
// a command, and never enters its letter into a text. Control with a key of the digits' row is the
// shortcut of its digit also on layouts that have the digits on Shift.
class KeyRules : public QObject {
 public:
  KeyRules();
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace fundlet
