#pragma once

#include "plan/plan.h"

namespace fundlet {

// Fills Surviving with the life table: of 100,000 people born, how many are alive at each age from
// 0 to 99. The one element that exists from the start takes age 0.
void FillSurviving(Plan& plan);

// Sets YearsLeft to the number of years until fewer than the given fraction of the people of
// StartAge are still alive, or to what is left to age 99 where the table ends before that. A
// StartAge above 99 so gives a negative number. A negative StartAge is no age of the table, and
// leaves YearsLeft as it was.
void CalculateSurvival(Plan& plan, double fraction);

}  // namespace fundlet
