#include <string>

#include <benchmark/benchmark.h>

#include "bench/bare_solve.h"
#include "bench/count_months.h"
#include "plan/draw_solver.h"

namespace fundlet::bench {

namespace {

void Bare(benchmark::State& state, const Plan& plan) {
  BareSolve solve;
  for (auto _ : state) solve.Run(plan);
  CountMonths(state, plan, solve.levels);
}

void Solver(benchmark::State& state, const Plan& measured) {
  BareSolve bare;
  bare.Run(measured);
  Plan plan = measured;
  for (auto _ : state) {
    PrepareArrays(plan);
    plan.OKtoPrint = true;
    CalculateDraw(plan, InitialGuess(plan));
  }
  if (plan.OKtoPrint && plan.AnnualDraw != bare.draw) state.SkipWithError("another draw");
  CountMonths(state, plan, bare.levels);
}

}  // namespace

}  // namespace fundlet::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  for (const auto& [name, plan] : fundlet::bench::MeasuredPlans()) {
    const auto register_as = [&](const char* kind, auto* measure) {
      benchmark::RegisterBenchmark((std::string(kind) + "/" + name).c_str(), measure, plan)
          ->Unit(benchmark::kMillisecond);
    };
    register_as("bare", &fundlet::bench::Bare);
    register_as("solver", &fundlet::bench::Solver);
  }
  benchmark::RunSpecifiedBenchmarks();
}
