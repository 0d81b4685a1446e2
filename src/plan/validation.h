#pragma once

#include "plan/entry_form.h"
#include "plan/plan.h"

namespace fundlet {

// The one gate between the eight fields and the solver. It reads the fields in the order of their
// codes into the plan and tests each value. The first value that fails ends the run: it is forced
// to one that passes, ErrorFocus names the field, the user is told in one alert, and the result is
// True. The fields behind it are not read. False means that all eight passed; then ErrorFocus is
// None and the fields of money show what was read, rounded to whole dollars.
bool ErrorDetected(Plan& plan, EntryForm& form);

}  // namespace fundlet
