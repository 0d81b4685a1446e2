#pragma once

#include "plan/entry_form.h"
#include "plan/plan.h"

// The commands that remember and recall one set of parameters. Neither tests a value. Both throw
// IOException; what they had done before the failure is not undone.
namespace fundlet {

// Reads the eight texts into the plan and writes the parameters over the record in the parameters
// file, which is created if it does not exist. In a longer file the bytes after the record remain.
// Changes nothing on the screen. A file that cannot be opened leaves the plan unchanged.
void SaveParameters(Plan& plan, const EntryForm& form);

// Reads the parameters file into the plan, or creates the file with the defaults if it does not
// exist; shows the plan, sets the result line to $0, and gives the focus to the start year. Result
// and schedule of the last solve remain in the plan.
void RestoreParameters(Plan& plan, EntryForm& form);

}  // namespace fundlet
