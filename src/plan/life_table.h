#pragma once

#include "plan/plan.h"

namespace fundlet {

// Fills Surviving with the life table: of 100,000 people born, how many are alive at each age from
// 0 to 99. Replaces what Surviving held.
void FillSurviving(Plan& plan);

// Sets YearsLeft to the years after which fewer than `fraction` (0 to 1) of the people of StartAge
// are alive. If the table ends first, YearsLeft becomes 99 - StartAge, which is negative above 99.
// A negative StartAge, which is no age of the table, leaves YearsLeft unchanged.
void CalculateSurvival(Plan& plan, double fraction);

}  // namespace fundlet
