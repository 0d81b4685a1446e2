#pragma once

#include "plan/entry_form.h"
#include "plan/plan.h"

// The commands that remember and recall one set of parameters. Neither tests a value. A failure
// leaves as an IOException, and what was done by then stands.
namespace fundlet {

// Reads the eight texts into the plan and writes them over the parameters file, in place: what lies
// behind the record in a longer file stays. Touches nothing on the screen.
void SaveParameters(Plan& plan, const EntryForm& form);

// Reads the parameters file into the plan, or makes one with the defaults where it has gone; shows
// the plan, clears the result line and puts the user on the start year. The last solve stays.
void RestoreParameters(Plan& plan, EntryForm& form);

}  // namespace fundlet
