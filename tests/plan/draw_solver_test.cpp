#include "plan/draw_solver.h"

#include <algorithm>
#include <cmath>
#include <limits>
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
      {MakePlan(40, .03, .0504, 1e6, 0, 0), 11693, 37407.65, 0.50, "37,408"},
  };
  for (auto [plan, levels, draw, final_balance, result] : samples) {
    EXPECT_EQ(LevelsOfSolve(plan), levels);
    EXPECT_NEAR(plan.AnnualDraw, draw, 0.01);
    EXPECT_NEAR(plan.Balance.back(), final_balance, 0.01);
    EXPECT_EQ(ResultText(plan.AnnualDraw), "Initial Year Draw:  $" + result);
    EXPECT_TRUE(plan.OKtoPrint);
  }
}

TEST(DrawSolver, TruncatesTheSumOfTwelveDraws) {
  Plan plan = DefaultPlan();
  Solve(plan);
  EXPECT_EQ(plan.Drawing[0], 73324) << "although the result shows 73,325";
  CalculateBalance(plan, 1, 100000);
  EXPECT_EQ(plan.Drawing[0], 99999);
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

TEST(DrawSolver, GivesEveryBitOfTheArithmeticInItsOrder) {
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> part(0, 1);
  for (int count = 0; count < 300; ++count) {
    const double start = 999'999'999 * part(random);
    Plan plan = MakePlan(4 + static_cast<int>(random() % 24), 0.03 * part(random),
                         0.05 * part(random), start, start * part(random), 99'999 * part(random));
    bench::BareSolve bare;
    bare.Run(plan);
    EXPECT_EQ(LevelsOfSolve(plan), bare.levels);
    EXPECT_EQ(plan.AnnualDraw, bare.draw);
    EXPECT_EQ(plan.Balance, bare.balance);
    EXPECT_EQ(plan.Drawing, bare.drawing);
  }
}

TEST(DrawSolver, FailsIfTheBalanceOverflowsAnArrayIsTooShortOrAYieldThrows) {
  Plan plan = MakePlan(40, .03, .08, 1e6, 0, 0);
  plan.AnnualDraw = 5;
  EXPECT_EQ(LevelsOfSolve(plan), 50'000);
  EXPECT_FALSE(std::isfinite(plan.Balance.back()));
  EXPECT_EQ(plan.AnnualDraw, 0);
  EXPECT_FALSE(plan.OKtoPrint);
  plan.FundletAPR = .05;
  Solve(plan);
  EXPECT_TRUE(plan.OKtoPrint) << "a plan can be solved after a failed one";
  plan.YearsLeft = 41;
  EXPECT_NO_THROW(CalculateDraw(plan, 1));
  EXPECT_EQ(plan.AnnualDraw, 0);
  EXPECT_FALSE(plan.OKtoPrint);
  plan.YearsLeft = 40;
  plan.OKtoPrint = true;
  SetBackgroundTask([]() -> int { throw 1; });
  EXPECT_NO_THROW(CalculateDraw(plan, plan.AnnualDraw = 5));
  SetBackgroundTask(nullptr);
  EXPECT_EQ(plan.AnnualDraw, 0);
  EXPECT_FALSE(plan.OKtoPrint);
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

using Long = long double;

// 1 + x + x^2 and so on, of so many terms.
Long Series(Long x, std::int64_t terms) {
  Long sum = 0;
  for (; terms > 0; --terms) sum = sum * x + 1;
  return sum;
}

// Compares one level with the closed form: the final balance is the grown Fundlet, less the slope
// for each dollar of the trial draw. The bound counts the roundings, five a month, one a year in
// the power and a few around them. Each is at most half a unit in the last place of the sum of all
// income and all draws.
void ExpectOnTheLine(Plan plan, double draw) {
  PrepareArrays(plan);
  for (std::int64_t year = 1; year <= plan.YearsLeft; ++year) CalculateBalance(plan, year, draw);
  const Long monthly = 1 + Long{plan.FundletAPR} / 12;
  const Long yearly = std::pow(monthly, 12);
  const Long cola = 1 + Long{plan.COLA};
  const Long grown = plan.StartFundlet * std::pow(yearly, plan.YearsLeft);
  const Long slope = Series(monthly, 12) / 12 * std::pow(cola, plan.YearsLeft - 1) *
                     Series(yearly / cola, plan.YearsLeft);
  const Long turnover = grown + slope * (Long{plan.SocialSecurity} + std::fabs(draw));
  const Long bound =
      (61 * plan.YearsLeft + 10) * turnover * std::numeric_limits<double>::epsilon() / 2;
  const Long exact = grown + slope * (Long{plan.SocialSecurity} - draw);
  ASSERT_LE(std::fabs(plan.Balance.back() - exact), bound)
      << plan.YearsLeft << " years, COLA " << plan.COLA << ", APR " << plan.FundletAPR << ", draw "
      << draw;
}

TEST(ClosedForm, GivesTheFinalBalanceOfAnyValidPlan) {
  std::mt19937_64 random(4);
  // Either an edge or a random number from zero to the greatest.
  const auto pick = [&random](double greatest, std::initializer_list<double> edges) {
    const std::size_t edge = random() % (2 * edges.size());
    if (edge < edges.size()) return edges.begin()[edge];
    return std::uniform_real_distribution<double>(0, greatest)(random);
  };
  for (int count = 0; count < 50'000; ++count) {
    const int years = static_cast<int>(pick(40, {4, 27, 40}));
    const double start = pick(999'999'999, {0, 500'000, 999'999'999});
    const Plan plan = MakePlan(std::max(years, 4), pick(0.1, {0, 1e-9, 0.02, 0.9999}),
                               pick(0.1, {0, 1e-9, 0.05, 0.9999}), start, pick(start, {0, start}),
                               pick(99'999, {0, 99'999}));
    ASSERT_NO_FATAL_FAILURE(ExpectOnTheLine(plan, pick(2e9, {0, 1, -5e8})));
  }
}

}  // namespace
}  // namespace fundlet
