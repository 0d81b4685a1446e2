#include <cmath>
#include <limits>
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

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}
  double Upto(double most) { return std::uniform_real_distribution<double>(0, most)(random_); }
  Plan AnyPlan(double highest_rate) {
    const double start = Upto(999'999'999);
    return MakePlan(4 + static_cast<int>(Upto(37)), Upto(highest_rate), Upto(highest_rate), start,
                    Upto(start), Upto(99'999));
  }

 private:
  std::mt19937_64 random_;
};

TEST(ClosedForm, GivesTheFinalBalanceOverAGrid) {
  for (const int years : {4, 5, 27, 40}) {
    for (const double cola : {0.0, 1e-9, 0.02, 0.05, 0.9999}) {
      for (const double apr : {0.0, 1e-9, 0.02, 0.05, 0.9999}) {
        for (const double draw : {0.0, 40'000.0, -1e9, 1e12}) {
          ASSERT_NO_FATAL_FAILURE(ExpectOnTheLine(MakePlan(years, cola, apr, 1e6, 1e5, 2e4), draw));
        }
      }
    }
  }
}

TEST(ClosedForm, GivesTheFinalBalanceOfAnyAcceptedPlan) {
  Dice dice(4);
  for (int count = 0; count < 100'000; ++count) {
    const Plan plan = dice.AnyPlan(count % 2 == 0 ? 0.1 : 0.9999);
    ASSERT_NO_FATAL_FAILURE(ExpectOnTheLine(plan, dice.Upto(2 * plan.StartFundlet)));
  }
}

double SolvedDraw(Plan plan) {
  Solve(plan);
  return plan.OKtoPrint ? plan.AnnualDraw : std::nan("");
}

TEST(ClosedForm, TellsWhichPlansCanBeSolved) {
  Dice dice(5);
  int solvable = 0;
  int unsolvable = 0;
  while (solvable < 500 || unsolvable < 10) {
    const Plan plan = dice.AnyPlan(0.1);
    const Line line(plan);
    const bool within = line.slope < 199;
    const bool beyond = line.slope >= 200;
    if ((!within && !beyond) || (within ? ++solvable > 500 : ++unsolvable > 10)) continue;
    const double draw = SolvedDraw(plan);
    ASSERT_EQ(std::isnan(draw), beyond) << "slope " << static_cast<double>(line.slope);
    if (beyond) continue;
    ASSERT_NEAR(static_cast<double>(line.Final(plan, draw)), plan.EndFundlet, 0.501);
  }
}

TEST(SolvedDraw, RisesWithMoneyThatComesAndFallsWithMoneyThatIsLeft) {
  Dice dice(6);
  for (int count = 0; count < 200; ++count) {
    const Plan plan = dice.AnyPlan(0.03);
    const double draw = SolvedDraw(plan);
    for (double Plan::*const money :
         {&Plan::StartFundlet, &Plan::SocialSecurity, &Plan::EndFundlet}) {
      Plan richer = plan;
      richer.*money += 2;
      const bool comes_in = money != &Plan::EndFundlet;
      ASSERT_EQ(SolvedDraw(richer) > draw, comes_in);
    }
  }
}

}  // namespace
}  // namespace fundlet
