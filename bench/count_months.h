#pragma once

#include <benchmark/benchmark.h>

#include "plan/plan.h"

namespace fundlet::bench {

// Reports the levels of a solve, and the rate of simulated months, which does not depend on the
// years and the levels.
inline void CountMonths(benchmark::State& state, const Plan& plan, int levels) {
  state.counters["levels"] = levels;
  state.SetItemsProcessed(state.iterations() * levels * plan.YearsLeft * 12);
}

}  // namespace fundlet::bench
