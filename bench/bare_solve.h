#pragma once

#include <cstdint>
#include <vector>

#include "plan/draw_solver.h"
#include "plan/plan.h"

namespace fundlet::bench {

// The arithmetic of a solve and nothing else: no yield, no question whether the user has cancelled,
// no window. It is what a solve is measured and tested against, so it does the same operations in
// the same order, and it shares no code with the solver.
struct BareSolve {
  std::vector<double> balance;
  std::vector<std::int64_t> drawing;
  double draw = 0.0;  // dollars per year
  int levels = 0;     // the number it took

  // Ends after so many levels at the most.
  void Run(const Plan& plan, int most_levels = kLevelLimit);
};

// The plans that are measured. The levels that they take differ by three orders of magnitude.
struct NamedPlan {
  const char* name;
  Plan plan;
};

const std::vector<NamedPlan>& MeasuredPlans();

}  // namespace fundlet::bench
