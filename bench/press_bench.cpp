#include <cstdlib>
#include <filesystem>
#include <string>

#include <benchmark/benchmark.h>

#include "app/my_application.h"
#include "bench/bare_solve.h"
#include "services/format.h"
#include "services/text.h"
#include "ui/main_window.h"

namespace fundlet::bench {

namespace {

// The solve that decides whether the yields and the open window cost too much: 11,693 levels.
const Plan& TheLongPlan() {
  for (const auto& [name, plan] : MeasuredPlans()) {
    if (name == std::string("40_years_5.04%")) return plan;
  }
  std::abort();
}

void TypeIn(aFundletWindow& window, const Plan& plan) {
  window.StartYearField().SetText(Str(plan.StartYear));
  window.StartAgeField().SetText(Str(plan.StartAge));
  window.YearsLeftField().SetText(Str(plan.YearsLeft));
  window.COLAField().SetText(Format(100.0 * plan.COLA, "##0.0##"));
  window.StartFundletField().SetText(Format(plan.StartFundlet, "###,###,##0"));
  window.FundletAPRField().SetText(Format(100.0 * plan.FundletAPR, "##0.0##"));
  window.SocialSecurityField().SetText(Format(plan.SocialSecurity, "##,##0"));
  window.EndFundletField().SetText(Format(plan.EndFundlet, "###,###,##0"));
}

void Bare(benchmark::State& state) {
  BareSolve solve;
  for (auto _ : state) solve.Run(TheLongPlan());
  CountMonths(state, TheLongPlan(), solve.levels);
}

// A press of the button in the open window: the reading of the fields, the solve with its yields,
// the busy wheel, and the result on the screen.
void Press(benchmark::State& state) {
  aFundletWindow& window = aFundletWindow::Instance();
  TypeIn(window, TheLongPlan());
  for (auto _ : state) window.CalculateButton().Press();
  BareSolve bare;
  bare.Run(TheLongPlan());
  if (window.ThePlan().AnnualDraw != bare.draw) state.SkipWithError("another draw");
  CountMonths(state, TheLongPlan(), bare.levels);
}

void UseFreshHome() {
  std::string folder = (std::filesystem::temp_directory_path() / "fundlet_bench_XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr) std::abort();
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
}

}  // namespace

}  // namespace fundlet::bench

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  fundlet::bench::UseFreshHome();
  fundlet::Runtime runtime(argv[0]);
  runtime.Start(&fundlet::MyApplication::_EarlyStartup, &fundlet::MyApplication::_LateStartup);
  benchmark::RegisterBenchmark("bare/press", &fundlet::bench::Bare)->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("window/press", &fundlet::bench::Press)
      ->Unit(benchmark::kMillisecond);
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::remove_all(std::getenv("XDG_CONFIG_HOME"));
}
