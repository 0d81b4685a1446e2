#pragma once

#include "plan/plan.h"
#include "services/folder_item.h"

namespace fundlet {

inline constexpr const char* kScheduleFileName = "Draw Schedule.txt";

// Writes the last solve as a text file for a spreadsheet program: nine lines of parameters, the
// headings, then one row for each year, every line with six cells separated by tabs. The parameters
// are the plan's present ones, which may differ from those of the solve. The rows end with the
// plan's YearsLeft or with the last year that was solved, whichever comes first. Replaces a file
// that is there. Throws IOException; the lines written before it remain.
void SaveSchedule(const Plan& plan, const FolderItem& file);

}  // namespace fundlet
