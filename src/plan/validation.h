#pragma once

#include "plan/entry_form.h"
#include "plan/plan.h"

namespace fundlet {

// The one gate between the eight fields and the solver. It reads the fields in the order of their
// codes into the plan and tests each value. The first value that fails ends the run: it is forced
// to one that passes, ErrorFocus takes the field's code, the user is told in one alert, and the
// result is True. The fields behind it are not read. False means that all eight passed; then
// ErrorFocus is 0 and the fields of money show what was read.
bool ErrorDetected(Plan& plan, EntryForm& form);

}  // namespace fundlet
