#pragma once

namespace fundlet {

// Asks the system to show the program's standard about panel, and returns true. RuntimeException if
// the system function is not found.
bool ShowAboutPanel();

}  // namespace fundlet
