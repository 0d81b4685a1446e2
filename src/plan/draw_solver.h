#pragma once

#include <cstdint>

#include "plan/plan.h"

// The solver: it finds the first year's draw that, raised each year by COLA, leaves EndFundlet at
// the end of YearsLeft years. It simulates the plan month by month with a trial draw, corrects the
// trial by one hundredth of the miss, and tries again. It needs no window, and it is not a general
// root finder: which plans can be solved follows from the divisor 100.
namespace fundlet {

// A solve that has not come within half a dollar after so many levels has failed. Plans near the
// edge of what the correction can solve need more than eleven thousand.
inline constexpr int kLevelLimit = 50'000;

// Simulates one plan year, 1 to YearsLeft, with the trial first-year draw in dollars per year.
// Reads Balance[year - 1]; writes Balance[year] and Drawing[year - 1]. Throws std::out_of_range
// where they do not exist.
void CalculateBalance(Plan& plan, std::int64_t year, double draw);

// Solves from the trial draw, in dollars per year. Success leaves the draw in AnnualDraw, and the
// arrays hold its simulation. A failure sets AnnualDraw to 0 and OKtoPrint to False. When the user
// cancels, both stay as they were, and the arrays hold the last complete simulation. Never throws.
void CalculateDraw(Plan& plan, double draw);

// Sizes the arrays for YearsLeft years, at least 1, and puts the initial Fundlet into Balance.
void SizeArrays(Plan& plan);

// The trial draw to start from: the amount to be consumed, spread evenly over the years, in dollars
// per year.
double InitialGuess(const Plan& plan);

}  // namespace fundlet
