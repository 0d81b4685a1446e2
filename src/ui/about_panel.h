#pragma once

namespace fundlet {

// Asks the system for the program's standard about panel. True when it was asked for; an exception
// where the system offers none.
bool ShowAboutPanel();

}  // namespace fundlet
