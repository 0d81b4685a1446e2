#include "plan/life_table.h"

#include <algorithm>
#include <functional>
#include <numeric>

#include <gtest/gtest.h>

namespace fundlet {
namespace {

TEST(LifeTable, FallsWithEveryYearOfAge) {
  Plan plan;
  FillSurviving(plan);
  const auto& alive = plan.Surviving;
  EXPECT_EQ(alive.size(), 100U);
  EXPECT_EQ(std::accumulate(alive.begin(), alive.end(), std::int64_t{0}), 7'521'177);
  EXPECT_EQ(std::adjacent_find(alive.begin(), alive.end(), std::less_equal<>()), alive.end());
}

TEST(LifeTable, AsksForStrictlyFewerThanTheFraction) {
  Plan plan;
  plan.Surviving = {100, 50, 49, 1};
  CalculateSurvival(plan, 0.5);
  EXPECT_EQ(plan.YearsLeft, 2);
}

TEST(LifeTable, GivesTheYearsUntilFewerThanTheFractionAreAlive) {
  const std::int64_t rows[][4] = {
      {52, 28, 36, 40}, {60, 21, 28, 32},     {65, 17, 24, 28}, {70, 14, 19, 23},
      {75, 10, 15, 19}, {80, 8, 12, 15},      {85, 6, 9, 12},   {90, 4, 7, 9},
      {92, 4, 6, 7},    {93, 3, 6, 6},        {95, 3, 4, 4},    {0, 79, 87, 91},
      {99, 0, 0, 0},    {120, -21, -21, -21}, {-1, 7, 7, 7},    {100, -1, -1, -1}};
  for (const auto& row : rows) {
    const auto years = [&](double fraction) {
      Plan plan;
      FillSurviving(plan);
      plan.StartAge = row[0];
      plan.YearsLeft = 7;
      CalculateSurvival(plan, fraction);
      return plan.YearsLeft;
    };
    EXPECT_EQ(years(0.5), row[1]) << row[0];
    EXPECT_EQ(years(0.25), row[2]) << row[0];
    EXPECT_EQ(years(0.125), row[3]) << row[0];
  }
}

}  // namespace
}  // namespace fundlet
