#pragma once

#include <string>

class QKeyEvent;

namespace fundlet {

// The text that the key enters, mostly one character; empty for a key without text. The keys for
// help, which are the Help key, F1 and control-E, give the application's HelpKey.
std::string KeyText(const QKeyEvent& event);

}  // namespace fundlet
