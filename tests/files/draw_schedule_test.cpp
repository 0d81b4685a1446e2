#include "files/draw_schedule.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/plan/sample_plans.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

Plan SolvedSample() {
  Plan plan = MakePlan(4, 0.025, 0.05, 500'000, 100'000, 20'000);
  plan.StartYear = 2010;
  plan.StartAge = 70;
  Solve(plan);
  return plan;
}

TEST(DrawSchedule, ReplacesAFileWithTheParametersAndOneRowForEachYear) {
  const ScratchFolder folder;
  const std::string name = "Entnahme ½ 年金 📈.txt";
  folder.Write(name, std::string(5000, 'x'));
  std::filesystem::permissions(folder.Path() / name, std::filesystem::perms{0222});
  (OrdinaryUser(), SaveSchedule(SolvedSample(), folder.Item(name)));
  std::filesystem::permissions(folder.Path() / name, std::filesystem::perms{0666});
  const auto expected = std::filesystem::path(__FILE__).replace_filename("schedule.txt");
  EXPECT_EQ(folder.Read(name), folder.Read(expected));
}

TEST(DrawSchedule, ShowsThePresentParametersAboveTheLastSolveAndNoYearsBeyondIt) {
  const ScratchFolder folder;
  Plan plan = SolvedSample();
  for (const auto& [years_left, rows] : {std::pair{5, 4}, {127, 4}, {3, 3}, {0, 0}, {-128, 0}}) {
    plan.YearsLeft = years_left;
    SaveSchedule(plan, folder.Item("text"));
    const std::string text = folder.Read("text");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 10 + rows) << years_left;
  }
  plan = SolvedSample();
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
