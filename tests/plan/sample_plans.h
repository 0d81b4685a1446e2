#pragma once

#include "plan/draw_solver.h"
#include "plan/plan.h"

namespace fundlet {

inline Plan MakePlan(std::int64_t years, double cola, double apr, double start, double end,
                     double social) {
  return {.YearsLeft = years,
          .COLA = cola,
          .StartFundlet = start,
          .SocialSecurity = social,
          .FundletAPR = apr,
          .EndFundlet = end};
}

// One press of Calculate with a valid plan, without the window.
inline void Solve(Plan& plan) {
  PrepareArrays(plan);
  plan.OKtoPrint = true;
  CalculateDraw(plan, InitialGuess(plan));
}

}  // namespace fundlet
