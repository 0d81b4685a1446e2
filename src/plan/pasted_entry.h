#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "plan/plan.h"

namespace fundlet {

// The entry for a field after a paste or a drop, where `text` is the whole text that the field
// would then have. The entry is at most `limit` characters long, and the field reads it as exactly
// the number that the text denotes.
//
// Removed are blanks at both ends, a plus sign, decimals that are all zero, the blanks or
// apostrophes between groups of three digits and, if the entry is too long otherwise, the commas
// between them. For money, a currency sign at either end is removed, and for a rate a percent sign.
//
// nullopt if the text is anything else than one such number, if the entry does not fit, or if the
// field would read it as another number: commas outside money, decimals or an exponent for a whole
// number, and for money a point that may separate thousands, as in "1.234".
std::optional<std::string> PastedEntry(FocusCode field, std::string_view text, std::size_t limit);

}  // namespace fundlet
