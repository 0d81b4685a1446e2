#pragma once

#include "plan/plan.h"
#include "services/folder_item.h"

namespace fundlet {

inline constexpr const char* kScheduleFileName = "Draw Schedule.txt";

// Writes the last solve as a text file for a spreadsheet program: nine lines of parameters, the
// headings, then one row for each year, every line of six cells between five tabs. The rows end
// with the plan's YearsLeft, or with the last year that was solved where that comes first. Replaces
// a file that is there. A failure leaves as an IOException, and the lines written by then stay.
void SaveSchedule(const Plan& plan, const FolderItem& file);

}  // namespace fundlet
