#pragma once

#include <cstdint>

#include "plan/plan.h"

// The solver. It finds the first year's draw that, raised each year by COLA, leaves EndFundlet at
// the end of YearsLeft years. Each level simulates all years month by month with a trial draw; the
// next trial draw is corrected by one hundredth of the miss, which is the final balance less
// EndFundlet. The solver is no general root finder: which plans it can solve follows from the
// divisor 100.
namespace fundlet {

// A solve fails if the miss is still half a dollar or more after so many levels. Plans near the
// edge of what the correction can solve need more than eleven thousand.
inline constexpr int kLevelLimit = 50'000;

// Simulates one plan year, 1 to YearsLeft, with a trial draw in dollars per year. Reads
// Balance[year - 1]; writes Balance[year] and Drawing[year - 1]. Throws std::out_of_range if one of
// these elements does not exist.
void CalculateBalance(Plan& plan, std::int64_t year, double draw);

// Solves the plan, whose arrays are prepared, from a trial draw in dollars per year. After a
// success AnnualDraw is the draw, and the arrays hold its simulation. A failure, an exception from
// a yield among them, sets AnnualDraw to 0 and OKtoPrint to False. If the user cancels, both stay
// as they were, and the arrays hold the last complete simulation. Never throws.
void CalculateDraw(Plan& plan, double draw);

// Sizes Balance and Drawing for YearsLeft, which must be at least 1, and sets Balance[0] to
// StartFundlet.
void PrepareArrays(Plan& plan);

// The first trial draw, in dollars per year: the amount to be consumed, spread evenly over
// YearsLeft, which must be at least 1.
double InitialGuess(const Plan& plan);

}  // namespace fundlet
