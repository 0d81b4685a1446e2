#include "plan/draw_solver.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "bench/bare_solve.h"
#include "plan/entry_fields.h"
#include "services/background.h"
#include "tests/plan/sample_plans.h"

namespace fundlet {
namespace {

int yields = 0;
int cancel_at = 0;

int CountYield() {
  if (++yields == cancel_at) SetUserCancelled(true);
  return 1;
}

// Solves and returns the number of levels run: each level yields once a month and once a year.
int LevelsOfSolve(Plan& plan, int cancel_at_yield = 0) {
  yields = 0;
  cancel_at = cancel_at_yield;
  SetBackgroundTask(CountYield);
  Solve(plan);
  SetBackgroundTask(nullptr);
  SetUserCancelled(false);
  return yields / (13 * static_cast<int>(plan.YearsLeft));
}

Plan DefaultPlan() { return MakePlan(27, .02, .05, 1e6, 1e5, 2e4); }

TEST(DrawSolver, FindsTheDrawOfEachSamplePlan) {
  const std::tuple<Plan, int, double, double, std::string> samples[] = {
      {DefaultPlan(), 14, 73324.53, 100000.40, "73,325"},
      {MakePlan(4, 0, 0, 1e6, 0, 0), 1, 250000, 0, "250,000"},
      {MakePlan(12, 0, 0, 5e5, 5e5, 0), 1, 0, 5e5, "0"},
      {MakePlan(10, 0, 0, 0, 0, 12000), 119, 11999.95, 0.48, "12,000"},
      {MakePlan(40, .03, .05, 1e6, 0, 0), 792, 37150.29, -0.49, "37,150"},
      {MakePlan(40, .03, .0504, 1e6, 0, 0), 11693, 37407.65, 0.50, "37,408"}};
  for (auto [plan, levels, draw, final_balance, result] : samples) {
    EXPECT_EQ(LevelsOfSolve(plan), levels);
    EXPECT_NEAR(plan.AnnualDraw, draw, 0.01);
    EXPECT_NEAR(plan.Balance.back(), final_balance, 0.01);
    EXPECT_EQ(ResultText(plan.AnnualDraw), "Initial Year Draw:  $" + result);
    EXPECT_TRUE(plan.OKtoPrint);
  }
}

TEST(DrawSolver, StopsBelowAMissOfHalfADollarAndNotAtIt) {
  Plan plan = MakePlan(4, 0, 0, 48.25, 0, 0);
  PrepareArrays(plan);
  CalculateDraw(plan, 12);
  EXPECT_EQ(plan.AnnualDraw, 12);
  plan.Balance[0] = 48.5;
  CalculateDraw(plan, 12);
  EXPECT_EQ(plan.AnnualDraw, 12.005);
}

// At high rates the levels diverge, so that only a few of them are compared.
TEST(DrawSolver, GivesEveryBitOfTheArithmeticInItsOrder) {
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> part(0, 1);
  for (int count = 0; count < 600; ++count) {
    const auto [cola, apr, longest, most_levels] = count % 2 == 0
                                                       ? std::tuple(0.03, 0.05, 27, kLevelLimit)
                                                       : std::tuple(0.9999, 0.9999, 40, 3);
    const int years = std::uniform_int_distribution(4, longest)(random);
    const double start = 999'999'999 * part(random);
    Plan plan = MakePlan(years, cola * part(random), apr * part(random), start,
                         start * part(random), 99'999 * part(random));
    bench::BareSolve bare;
    bare.Run(plan, most_levels);
    EXPECT_EQ(LevelsOfSolve(plan, most_levels * 13 * years), bare.levels);
    EXPECT_EQ(plan.Balance, bare.balance);
    if (bare.levels == most_levels) continue;
    EXPECT_EQ(plan.AnnualDraw, bare.draw);
    EXPECT_EQ(plan.Drawing, bare.drawing);
  }
}

TEST(DrawSolver, FailsIfTheBalanceOverflowsAnArrayIsTooShortOrAYieldThrows) {
  const auto expect_failed = [](Plan& plan) {
    EXPECT_EQ(plan.AnnualDraw, 0);
    EXPECT_FALSE(plan.OKtoPrint);
  };
  Plan plan = MakePlan(40, .03, .08, 1e6, 0, 0);
  plan.AnnualDraw = 5;
  EXPECT_EQ(LevelsOfSolve(plan), 50'000);
  EXPECT_FALSE(std::isfinite(plan.Balance.back()));
  expect_failed(plan);
  plan.FundletAPR = .05;
  Solve(plan);
  EXPECT_TRUE(plan.OKtoPrint) << "a plan can be solved after a failed one";
  plan.YearsLeft = 41;
  CalculateDraw(plan, 1);
  expect_failed(plan);
  plan.YearsLeft = 40;
  SetBackgroundTask([]() -> int { throw 1; });
  Solve(plan);
  SetBackgroundTask(nullptr);
  expect_failed(plan);
}

TEST(DrawSolver, StopsBetweenTwoLevelsWhenTheUserCancels) {
  Plan plan = DefaultPlan();
  plan.AnnualDraw = 5;
  EXPECT_EQ(LevelsOfSolve(plan, 2 * 13 * 27 + 1), 3) << "cancelled at the start of the third";
  bench::BareSolve bare;
  bare.Run(plan, 3);
  EXPECT_EQ(plan.Balance, bare.balance);
  SetUserCancelled(true);
  EXPECT_EQ(LevelsOfSolve(plan), 0);
  EXPECT_EQ(plan.AnnualDraw, 5);
  EXPECT_TRUE(plan.OKtoPrint);
}

}  // namespace
}  // namespace fundlet
