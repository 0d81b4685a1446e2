#pragma once

#include <cstdint>
#include <vector>

#include "plan/draw_solver.h"
#include "plan/plan.h"

namespace fundlet::bench {

// The arithmetic of a solve and nothing else: no yield, no check whether the user has cancelled, no
// window. Solves are measured and tested against it, so it does the same operations in the same
// order. It shares only Pow with the solver.
struct BareSolve {
  std::vector<double> balance;
  std::vector<std::int64_t> drawing;
  double draw = 0.0;  // the draw that was found, in dollars per year
  int levels = 0;     // the number of levels run

  // Solves a plan of at least one year, in at most so many levels, at least 1.
  void Run(const Plan& plan, int most_levels = kLevelLimit);
};

// A plan to measure; its name is that of its benchmark.
struct NamedPlan {
  const char* name;
  Plan plan;
};

// The plans that are measured: from 1 level to kLevelLimit.
const std::vector<NamedPlan>& MeasuredPlans();

}  // namespace fundlet::bench
