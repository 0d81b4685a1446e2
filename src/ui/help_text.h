#pragma once

#include <string>

namespace fundlet {

// The help page. Its lines are separated by carriage returns.
std::string HelpText();

}  // namespace fundlet
