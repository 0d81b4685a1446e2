#pragma once

#include <string>

class QKeyEvent;

namespace fundlet {

// The text of a key, one character; empty for a key that has none. The keys for help, which are the
// Help key, F1 and control-E, all give the application's HelpKey.
std::string KeyText(const QKeyEvent& event);

}  // namespace fundlet
