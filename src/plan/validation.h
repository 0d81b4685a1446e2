#pragma once

#include "plan/entry_form.h"
#include "plan/plan.h"

namespace fundlet {

// The only check between the fields and the solver. It reads the fields into the plan in the order
// of their codes and tests each. The first invalid value ends the check: the plan gets the rule's
// forced value, ErrorFocus names the field, one alert is shown, and the result is True; later
// fields are not read. False means that all eight are valid; ErrorFocus is then None, and the
// fields of money show the values read, rounded to whole dollars.
bool ErrorDetected(Plan& plan, EntryForm& form);

}  // namespace fundlet
