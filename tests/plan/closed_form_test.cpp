#include <cmath>
#include <limits>
#include <optional>
#include <random>

#include <gtest/gtest.h>

#include "tests/plan/sample_plans.h"

namespace fundlet {
namespace {

__extension__ using Quad = __float128;

Quad Power(Quad base, std::int64_t exponent) {
  Quad power = 1;
  for (; exponent > 0; --exponent) power *= base;
  return power;
}

// 1 + x + x^2 and so on, of so many terms; `above_one` is x - 1.
Quad Series(Quad above_one, std::int64_t terms) {
  if (above_one == 0) return terms;
  return (Power(1 + above_one, terms) - 1) / above_one;
}

// The final balance as a straight line: what the Fundlet grows to, less the slope for each dollar
// that is drawn in the first year.
struct Line {
  Quad grown;
  Quad slope;

  explicit Line(const Plan& plan) {
    const Quad monthly = Quad{plan.FundletAPR} / 12;
    const Quad yearly = Power(1 + monthly, 12);
    const Quad cola = 1 + Quad{plan.COLA};
    grown = plan.StartFundlet * Power(yearly, plan.YearsLeft);
    slope = Series(monthly, 12) / 12 * Power(cola, plan.YearsLeft - 1) *
            Series(yearly / cola - 1, plan.YearsLeft);
  }
  Quad Final(const Plan& plan, double draw) const {
    return grown + slope * (Quad{plan.SocialSecurity} - draw);
  }
};

// Compares one simulation with the closed form. The bound counts the roundings, five a month, one
// a year in the power and a few around them, each of half a unit in the last place of at most the
// sum of all that comes in and goes out.
void ExpectOnTheLine(Plan plan, double draw) {
  SizeArrays(plan);
  for (std::int64_t year = 1; year <= plan.YearsLeft; ++year) CalculateBalance(plan, year, draw);
  const Line line(plan);
  const Quad turnover = line.grown + line.slope * (Quad{plan.SocialSecurity} + std::fabs(draw));
  const Quad bound =
      (61 * plan.YearsLeft + 10) * turnover * std::numeric_limits<double>::epsilon() / 2;
  const Quad miss = plan.Balance.back() - line.Final(plan, draw);
  ASSERT_LE(static_cast<double>(miss < 0 ? -miss : miss), static_cast<double>(bound))
      << plan.YearsLeft << " years, COLA " << plan.COLA << ", APR " << plan.FundletAPR << ", draw "
      << draw;
}

// Throws plans of the accepted range, with rates up to a highest one.
class Dice {
 public:
  double Upto(double most) { return std::uniform_real_distribution<double>(0, most)(random_); }
  Plan Throw(double highest_rate) {
    const double start = Upto(999'999'999);
    return MakePlan(4 + static_cast<int>(Upto(37)), Upto(highest_rate), Upto(highest_rate), start,
                    Upto(start), Upto(99'999));
  }

 private:
  std::mt19937_64 random_{4};
};

TEST(ClosedForm, GivesTheFinalBalanceOverAGridUpToTheBounds) {
  constexpr int kCells = 3 * 3 * 3 * 3 * 2 * 3 * 3;
  for (int cell = 0; cell < kCells; ++cell) {
    int rest = cell;
    const auto next = [&rest](std::initializer_list<double> values) {
      const int count = static_cast<int>(values.size());
      const double value = values.begin()[rest % count];
      rest /= count;
      return value;
    };
    const double start = next({0, 500'000, 999'999'999});
    const Plan plan =
        MakePlan(static_cast<int>(next({4, 27, 40})), next({0, 0.02, 0.9999}),
                 next({0, 0.05, 0.9999}), start, next({0, start}), next({0, 20'000, 99'999}));
    ASSERT_NO_FATAL_FAILURE(ExpectOnTheLine(plan, next({0, 1, 1e9})));
  }
}

TEST(ClosedForm, GivesTheFinalBalanceOfAnyAcceptedPlan) {
  const double edges[] = {0.0, 1e-9, 0.05, 0.9999};
  Dice dice;
  for (int count = 0; count < 100'000; ++count) {
    Plan plan = dice.Throw(count % 2 == 0 ? 0.1 : 0.9999);
    if (count % 3 == 0) plan.COLA = edges[count / 3 % 4];
    if (count % 5 == 0) plan.FundletAPR = edges[count / 5 % 4];
    ASSERT_NO_FATAL_FAILURE(ExpectOnTheLine(plan, dice.Upto(2e9) - 5e8));
  }
}

// The draw that solves the plan, or nothing.
std::optional<double> SolvedDraw(Plan plan) {
  Solve(plan);
  return plan.OKtoPrint ? std::optional(plan.AnnualDraw) : std::nullopt;
}

TEST(ClosedForm, TellsByItsSlopeWhichPlansCanBeSolved) {
  Dice dice;
  for (int solvable = 0, unsolvable = 0; solvable < 300 || unsolvable < 6;) {
    const Plan plan = dice.Throw(0.1);
    const Line line(plan);
    if (line.slope < 199 && ++solvable <= 300) {
      const std::optional<double> draw = SolvedDraw(plan);
      ASSERT_TRUE(draw.has_value()) << "slope " << static_cast<double>(line.slope);
      ASSERT_NEAR(static_cast<double>(line.Final(plan, *draw)), plan.EndFundlet, 0.501);
    } else if (line.slope >= 200 && ++unsolvable <= 6) {
      ASSERT_FALSE(SolvedDraw(plan).has_value()) << "slope " << static_cast<double>(line.slope);
    }
  }
}

TEST(SolvedDraw, RisesWithMoneyThatComesInAndFallsWithMoneyThatIsLeft) {
  Dice dice;
  for (int count = 0; count < 200; ++count) {
    const Plan plan = dice.Throw(0.03);
    const auto draw_with_more = [plan](double Plan::*money, double dollars) {
      Plan richer = plan;
      richer.*money += dollars;
      return SolvedDraw(richer).value();
    };
    const double draw = SolvedDraw(plan).value();
    ASSERT_GT(draw_with_more(&Plan::StartFundlet, 2), draw);
    ASSERT_GT(draw_with_more(&Plan::SocialSecurity, 2), draw);
    ASSERT_LT(draw_with_more(&Plan::EndFundlet, 2), draw);
  }
}

}  // namespace
}  // namespace fundlet
