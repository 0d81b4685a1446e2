#include "files/draw_schedule.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/files/sample_schedule.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

TEST(DrawSchedule, HoldsTheParametersAndOneRowForEachYear) {
  const ScratchFolder folder;
  const std::string name = "Entnahme ½ 年金 📈.txt";
  folder.Write(name, std::string(5000, 'x'));
  SaveSchedule(SolvedSample(), folder.Item(name));
  EXPECT_EQ(folder.Read(name), kSampleSchedule);
}

TEST(DrawSchedule, EndsWithTheYearsLeftOrWithTheLastYearSolved) {
  const ScratchFolder folder;
  Plan plan = SolvedSample();
  for (const auto& [years_left, rows] : {std::pair{5, 4}, {127, 4}, {3, 3}, {0, 0}, {-128, 0}}) {
    plan.YearsLeft = years_left;
    SaveSchedule(plan, folder.Item("text"));
    const std::string text = folder.Read("text");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 10 + rows) << years_left;
  }
}

TEST(DrawSchedule, ShowsTheParametersOfNowAboveTheBalancesOfTheLastSolve) {
  const ScratchFolder folder;
  Plan plan = SolvedSample();
  plan.StartFundlet = 7;
  plan.StartYear = 1999;
  plan.COLA = 0.02126;
  plan.Balance.back() = -0.4;
  SaveSchedule(plan, folder.Item("text"));
  const std::string text = folder.Read("text");
  for (const char* part : {"Initial Fundlet: $7\t", "COLA: 2.126%\t", "\n1999\t70\t500,000\t",
                           "\n2002\t73\t211,984\t141,577\t0\t74\n"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
  }
}

}  // namespace
}  // namespace fundlet
