#include "plan/draw_solver.h"

#include <cfloat>

#include "services/background.h"
#include "services/numbers.h"

// The bits of the answer depend on the order of the operations and on their precision.
#if defined(__FAST_MATH__)
#error "The arithmetic must be exactly that of IEEE 754."
#endif
static_assert(FLT_EVAL_METHOD == 0);

namespace fundlet {

namespace {

constexpr int kMonths = 12;
constexpr double kTolerance = 0.5;      // dollars
constexpr double kStepDivisor = 100.0;  // decides which plans converge

std::size_t Index(std::int64_t position) { return static_cast<std::size_t>(position); }

}  // namespace

void CalculateBalance(Plan& plan, std::int64_t year, double draw) {
  double b = plan.Balance.at(Index(year - 1));
  const double rate = plan.FundletAPR;
  const double growth = Pow(1.0 + plan.COLA, static_cast<double>(year - 1));
  const double monthly_social = (growth * plan.SocialSecurity) / 12.0;
  const double monthly_draw = (growth * draw) / 12.0;
  double total = 0.0;
  for (int month = 1; month <= kMonths; ++month) {
    const double interest = (b * rate) / 12.0;
    b = b + interest;
    b = b + monthly_social;
    total = total + monthly_draw;
    b = b - monthly_draw;
    RuntimeBackgroundTask();
  }
  plan.Balance.at(Index(year)) = b;
  plan.Drawing.at(Index(year - 1)) = Truncated(total);
}

namespace {

enum class Outcome { Solved, Failed, Cancelled };

Outcome RunLevels(Plan& plan, double draw) {
  for (int level = 1; level <= kLevelLimit; ++level) {
    if (UserCancelled()) return Outcome::Cancelled;
    for (std::int64_t year = 1; year <= plan.YearsLeft; ++year) {
      CalculateBalance(plan, year, draw);
      RuntimeBackgroundTask();
    }
    const double final_balance = plan.Balance.at(Index(plan.YearsLeft));
    if (kTolerance > Abs(final_balance - plan.EndFundlet)) {
      plan.AnnualDraw = draw;
      return Outcome::Solved;
    }
    const double step = (plan.EndFundlet - final_balance) / kStepDivisor;
    draw = draw - step;
  }
  return Outcome::Failed;
}

Outcome RunLevelsGuarded(Plan& plan, double draw) {
  try {
    return RunLevels(plan, draw);
  } catch (...) {  // a yield may throw anything
    return Outcome::Failed;
  }
}

}  // namespace

void CalculateDraw(Plan& plan, double draw) {
  if (RunLevelsGuarded(plan, draw) != Outcome::Failed) return;
  plan.AnnualDraw = 0.0;
  plan.OKtoPrint = false;
}

void PrepareArrays(Plan& plan) {
  plan.Balance.resize(Index(plan.YearsLeft + 1));
  plan.Balance.at(0) = plan.StartFundlet;
  plan.Drawing.resize(Index(plan.YearsLeft + 1));
}

double InitialGuess(const Plan& plan) {
  return (plan.StartFundlet - plan.EndFundlet) / static_cast<double>(plan.YearsLeft);
}

}  // namespace fundlet
