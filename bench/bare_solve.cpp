#include "bench/bare_solve.h"

#include <cmath>

#include "services/numbers.h"

namespace fundlet::bench {

namespace {

// A total that no integer holds becomes 0, because its conversion is undefined; a failing plan has
// infinite totals.
std::int64_t Whole(double total) {
  return std::fabs(total) < 9.2e18 ? static_cast<std::int64_t>(total) : 0;
}

Plan MakePlan(std::int64_t years, double cola, double apr, double social, double end) {
  Plan plan;
  plan.YearsLeft = years;
  plan.StartYear = 2026;
  plan.StartAge = 55;
  plan.COLA = cola;
  plan.StartFundlet = 1'000'000;
  plan.SocialSecurity = social;
  plan.FundletAPR = apr;
  plan.EndFundlet = end;
  return plan;
}

}  // namespace

void BareSolve::Run(const Plan& plan, int most_levels) {
  const auto years = static_cast<std::size_t>(plan.YearsLeft);
  balance.assign(years + 1, 0.0);
  drawing.assign(years + 1, 0);
  balance[0] = plan.StartFundlet;
  draw = (plan.StartFundlet - plan.EndFundlet) / static_cast<double>(years);
  for (levels = 1; levels <= most_levels; ++levels) {
    for (std::size_t year = 1; year <= years; ++year) {
      double b = balance[year - 1];
      const double growth = Pow(1.0 + plan.COLA, static_cast<double>(year - 1));
      const double monthly_social = (growth * plan.SocialSecurity) / 12.0;
      const double monthly_draw = (growth * draw) / 12.0;
      double total = 0.0;
      for (int month = 1; month <= 12; ++month) {
        const double interest = (b * plan.FundletAPR) / 12.0;
        b = b + interest;
        b = b + monthly_social;
        total = total + monthly_draw;
        b = b - monthly_draw;
      }
      balance[year] = b;
      drawing[year - 1] = Whole(total);
    }
    if (0.5 > std::fabs(balance[years] - plan.EndFundlet)) return;
    draw = draw - (plan.EndFundlet - balance[years]) / 100.0;
  }
  levels = most_levels;
}

const std::vector<NamedPlan>& MeasuredPlans() {
  static const std::vector<NamedPlan> plans = {
      {"4_years_no_rates", MakePlan(4, 0, 0, 0, 0)},
      {"4_years", MakePlan(4, 0.025, 0.05, 20000, 100000)},
      {"10_years", MakePlan(10, 0.025, 0.05, 20000, 100000)},
      {"20_years", MakePlan(20, 0.025, 0.05, 20000, 100000)},
      {"27_years", MakePlan(27, 0.02, 0.05, 20000, 100000)},
      {"40_years_5.00%", MakePlan(40, 0.03, 0.05, 0, 0)},
      {"40_years_5.04%", MakePlan(40, 0.03, 0.0504, 0, 0)},
      {"40_years_unsolvable", MakePlan(40, 0.03, 0.08, 0, 0)},
  };
  return plans;
}

}  // namespace fundlet::bench
