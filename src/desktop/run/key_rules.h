#pragma once

#include <QObject>

class QKeyEvent;

namespace fundlet {

// Offers a key press to the window's shortcuts, as Qt does before it delivers a key. Returns
// whether one has used it.
bool ChoosesShortcut(QObject& window, const QKeyEvent& key);

// Changes what Qt does with two kinds of keys, in every window and dialog. A key with Alt or Meta
// enters no text, because it is a command. Control with a key of the digits' row is also the
// shortcut of its digit on layouts that have the digits on Shift.
class KeyRules : public QObject {
 public:
  KeyRules();
  bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace fundlet
