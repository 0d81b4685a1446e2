#include <filesystem>
#include <iterator>
#include <malloc.h>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"

namespace fundlet {
namespace {

using LongSession = StartedTest;

#ifdef __SANITIZE_ADDRESS__
constexpr int kRounds = 20;  // the sanitizer's own keep of memory is not looked at
#else
constexpr int kRounds = 400;
#endif

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

TEST_F(LongSession, LeavesMemoryAndOpenFilesAsTheyWere) {
  Use(kRounds / 2);  // fills what is kept for use again
  const long memory = MemoryInUse();
  const auto files = OpenFiles();
  Use(kRounds);
  EXPECT_LT(MemoryInUse() - memory, kRounds * 100L);
  EXPECT_EQ(OpenFiles(), files);
}

}  // namespace
}  // namespace fundlet
