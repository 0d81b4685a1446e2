#pragma once

#include <cstdint>
#include <vector>

#include <benchmark/benchmark.h>

#include "plan/plan.h"

namespace fundlet::bench {

// The arithmetic of a solve and nothing else: no yield, no question whether the user has cancelled,
// no window. It is what a solve is measured against, so it does the same operations in the same
// order, and it shares no code with the solver.
struct BareSolve {
  std::vector<double> balance;
  std::vector<std::int64_t> drawing;
  double draw = 0.0;  // dollars per year
  int levels = 0;     // the number it took

  void Run(const Plan& plan);
};

// The plans that are measured. The levels that they take differ by three orders of magnitude.
struct NamedPlan {
  const char* name;
  Plan plan;
};

const std::vector<NamedPlan>& MeasuredPlans();

// Reports the levels of a solve, and the rate of months simulated, which is what stays the same
// over years and levels.
void CountMonths(benchmark::State& state, const Plan& plan, int levels);

}  // namespace fundlet::bench
