#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWindow>
#include <benchmark/benchmark.h>

#include "app/my_application.h"
#include "bench/bare_solve.h"
#include "bench/count_months.h"
#include "desktop/windows/native_window.h"
#include "services/format.h"
#include "services/text.h"
#include "ui/main_window.h"

namespace fundlet::bench {

namespace {

// A plan of 11,693 levels, long enough to show the cost of the yields and of the open window.
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

// The baseline: the arithmetic alone, without a window.
void Bare(benchmark::State& state) {
  BareSolve solve;
  for (auto _ : state) solve.Run(TheLongPlan());
  CountMonths(state, TheLongPlan(), solve.levels);
}

void Key(aFundletWindow& window, Qt::Key key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QCoreApplication::sendEvent(window.Native().windowHandle(), &press);
}

// The time from the key press in the open window to the painted result: reading the fields, the
// solve with its yields, the busy wheel, and Qt's events.
void Press(benchmark::State& state) {
  aFundletWindow& window = aFundletWindow::Instance();
  TypeIn(window, TheLongPlan());
  for (auto _ : state) {
    Key(window, Qt::Key_Return);
    QCoreApplication::processEvents();
  }
  BareSolve bare;
  bare.Run(TheLongPlan());
  if (window.ThePlan().AnnualDraw != bare.draw) state.SkipWithError("another draw");
  CountMonths(state, TheLongPlan(), bare.levels);
}

// The time from Escape, pressed during a solve that would otherwise run to the level limit, until
// the handler of the button has returned.
void AnswerToEscape(benchmark::State& state) {
  aFundletWindow& window = aFundletWindow::Instance();
  Plan endless = TheLongPlan();
  endless.FundletAPR = 0.08;
  TypeIn(window, endless);
  static int run = 0;
  const std::chrono::milliseconds wait(40 + 7 * ++run);
  for (auto _ : state) {
    const auto due = std::chrono::steady_clock::now() + wait;
    QTimer::singleShot(wait, Qt::PreciseTimer, [&window] { Key(window, Qt::Key_Escape); });
    Key(window, Qt::Key_Return);
    const std::chrono::duration<double> answer = std::chrono::steady_clock::now() - due;
    if (answer.count() < 0) state.SkipWithError("the solve had ended before");
    state.SetIterationTime(answer.count());
  }
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
  benchmark::RegisterBenchmark("escape/answer", &fundlet::bench::AnswerToEscape)
      ->Unit(benchmark::kMillisecond)
      ->Iterations(1)
      ->UseManualTime();
  benchmark::RunSpecifiedBenchmarks();
  std::filesystem::remove_all(std::getenv("XDG_CONFIG_HOME"));
}
