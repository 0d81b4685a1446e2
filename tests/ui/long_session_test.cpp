#include <filesystem>
#include <iterator>
#include <malloc.h>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"

namespace fundlet {
namespace {

using LongSession = StartedTest;

// The bytes that the program has asked for and not given back.
auto MemoryInUse() { return static_cast<long>(mallinfo2().uordblks + mallinfo2().hblkhd); }

auto OpenFiles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return std::distance(begin(files), end(files));
}

void Use(int rounds) {
  for (int i = 0; i < rounds; ++i) {
    for (int solve = 0; solve < 10; ++solve) user::Key(Qt::Key_Return);
    ASSERT_EQ(aFundletWindow::Instance().AnnualDrawField().Text(), "Initial Year Draw:  $73,325");
    user::Key(Qt::Key_F1);
    ASSERT_TRUE(GlobalModule::HelpShowing);
    user::Key(Qt::Key_Return);
    ASSERT_FALSE(GlobalModule::HelpShowing);
    user::Key(Qt::Key_P, Qt::ControlModifier);
    user::Key(Qt::Key_R, Qt::ControlModifier);
  }
}

// What is kept for use again grows less and less from round to round, a leak grows on.
TEST_F(LongSession, LeavesMemoryAndOpenFilesAsTheyWere) {
  constexpr int kRounds = 50;
  constexpr long kNoGrowth = kRounds * 100L;  // bytes
  Use(kRounds);
  const auto files = OpenFiles();
  long growth = kNoGrowth;
  for (int tries = 0; tries < 16 && growth >= kNoGrowth; ++tries) {
    const long before = MemoryInUse();
    Use(kRounds);
    growth = MemoryInUse() - before;
  }
  EXPECT_LT(growth, kNoGrowth);
  EXPECT_EQ(OpenFiles(), files);
}

}  // namespace
}  // namespace fundlet
