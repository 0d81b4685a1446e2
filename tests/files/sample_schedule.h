#pragma once

#include <string>

#include "tests/plan/sample_plans.h"

namespace fundlet {

// The plan of TextForm, solved.
inline Plan SolvedSample() {
  Plan plan = MakePlan(4, 0.025, 0.05, 500'000, 100'000, 20'000);
  plan.StartYear = 2010;
  plan.StartAge = 70;
  Solve(plan);
  return plan;
}

inline const std::string kSampleSchedule =
    "Start with 1 Jan 2010\t\t\t\t\t\n"
    "Age on 1 Jan: 70 Years\t\t\t\t\t\n"
    "Life Expectancy: 4 Years\t\t\t\t\t\n"
    "COLA: 2.5%\t\t\t\t\t\n"
    "Initial Fundlet: $500,000\t\t\t\t\t\n"
    "After-Tax Fundlet APR: 5.0%\t\t\t\t\t\n"
    "IInitial Social Security: $20,000\t\t\t\t\t\n"
    "Terminal Fundlet: $100,000\t\t\t\t\t\n"
    "\t\t\t\t\t\n"
    "Year\tAge on 1 Jan\tBegining Balance\tDraw\tEnding Balance\tAge on 31 Dec\n"
    "2010\t70\t500,000\t131,468\t411,522\t71\n"
    "2011\t71\t411,522\t134,755\t315,666\t72\n"
    "2012\t72\t315,666\t138,123\t211,984\t73\n"
    "2013\t73\t211,984\t141,577\t100,000\t74\n";

}  // namespace fundlet
