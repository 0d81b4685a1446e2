#include "plan/life_table.h"

#include <array>

#include "services/background.h"

namespace fundlet {

namespace {

// How many of 100,000 people born are alive at each age; ten ages a row.
constexpr std::array<std::int64_t, 100> kLifeTable = {
    100000, 99239, 99187, 99150, 99122, 99100, 99081, 99063, 99047, 99032,  //
    99020,  99009, 98996, 98979, 98950, 98906, 98845, 98767, 98673, 98567,  //
    98450,  98323, 98186, 98044, 97901, 97761, 97627, 97497, 97369, 97241,  //
    97111,  96978, 96840, 96698, 96549, 96391, 96225, 96047, 95855, 95647,  //
    95421,  95176, 94912, 94627, 94317, 93981, 93615, 93220, 92793, 92336,  //
    91846,  91322, 90760, 90161, 89523, 88846, 88128, 87365, 86549, 85673,  //
    84725,  83695, 82575, 81365, 80070, 78694, 77235, 75683, 74030, 72265,  //
    70382,  68389, 66290, 64073, 61722, 59229, 56605, 53873, 51039, 48106,  //
    45080,  41966, 38787, 35574, 32364, 29188, 26065, 23028, 20108, 17337,  //
    14743,  12352, 10182, 8249,  6559,  5110,  3896,  2901,  2108,  1491};

}  // namespace

void FillSurviving(Plan& plan) { plan.Surviving.assign(kLifeTable.begin(), kLifeTable.end()); }

void CalculateSurvival(Plan& plan, double fraction) {
  if (plan.StartAge < 0) return;
  const auto last_age = static_cast<std::int64_t>(plan.Surviving.size()) - 1;
  const auto alive_at = [&plan](std::int64_t age) {
    return static_cast<double>(plan.Surviving.at(static_cast<std::size_t>(age)));
  };
  std::int64_t found = 0;
  for (std::int64_t age = plan.StartAge; age <= last_age; ++age) {
    const double ratio = alive_at(age) / alive_at(plan.StartAge);
    if (fraction > ratio) {
      found = age;
      break;
    }
    RuntimeBackgroundTask();
  }
  plan.YearsLeft = (found > 0 ? found : last_age) - plan.StartAge;
}

}  // namespace fundlet
