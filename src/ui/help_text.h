#pragma once

#include <string>

namespace fundlet {

// The one page of help. A line ends in a carriage return, the last line in nothing.
std::string HelpText();

}  // namespace fundlet
