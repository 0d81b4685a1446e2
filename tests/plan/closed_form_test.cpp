#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "tests/plan/sample_plans.h"

namespace fundlet {
namespace {

using Long = long double;

// 1 + x + x^2 and so on, of so many terms.
Long Series(Long x, std::int64_t terms) {
  Long sum = 0;
  for (; terms > 0; --terms) sum = sum * x + 1;
  return sum;
}

// Compares one simulation with the closed form: the final balance is what the Fundlet grows to,
// less the slope for each dollar that is drawn in the first year. The bound counts the roundings,
// five a month, one a year in the power and a few around them, each of half a unit in the last
// place of at most the sum of all that comes in and goes out.
void ExpectOnTheLine(Plan plan, double draw) {
  SizeArrays(plan);
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

TEST(ClosedForm, GivesTheFinalBalanceOfAnyAcceptedPlan) {
  std::mt19937_64 random(4);
  // Now an edge, now anything between zero and the greatest.
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
