#include "plan/life_table.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include <gtest/gtest.h>

namespace fundlet {

TEST(LifeTable, FallsWithEveryYearOfAge) {
  Plan plan;
  FillSurviving(plan);
  const auto& alive = plan.Surviving;
  EXPECT_EQ(alive.size(), 100U);
  EXPECT_EQ(std::accumulate(alive.begin(), alive.end(), std::int64_t{0}), 7'521'177);
  EXPECT_EQ(std::adjacent_find(alive.begin(), alive.end(), std::less_equal<>()), alive.end());
}

TEST(LifeTable, GivesTheYearsUntilFewerThanTheFractionAreAlive) {
  using Years = std::vector<std::int64_t>;
  const std::pair<std::int64_t, Years> rows[] = {
      {-1, {7, 7, 7}},     {0, {79, 87, 91}},     {52, {28, 36, 40}}, {70, {14, 19, 23}},
      {92, {4, 6, 7}},     {93, {3, 6, 6}},       {95, {3, 4, 4}},    {99, {0, 0, 0}},
      {100, {-1, -1, -1}}, {120, {-21, -21, -21}}};
  for (const auto& [age, expected] : rows) {
    Years years;
    for (const double fraction : {0.5, 0.25, 0.125}) {
      Plan plan;
      FillSurviving(plan);
      plan.StartAge = age;
      plan.YearsLeft = 7;
      CalculateSurvival(plan, fraction);
      years.push_back(plan.YearsLeft);
    }
    EXPECT_EQ(years, expected) << age;
  }
  Plan plan;
  plan.Surviving = {100, 50, 49, 1};
  CalculateSurvival(plan, 0.5);
  EXPECT_EQ(plan.YearsLeft, 2) << "strictly fewer";
}

}  // namespace fundlet
