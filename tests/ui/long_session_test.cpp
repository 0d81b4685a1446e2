#include <filesystem>
#include <iterator>
#include <malloc.h>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"

namespace fundlet {
namespace {

using LongSession = StartedTest;

// The bytes that are allocated at the moment; always 0 under AddressSanitizer, whose allocator is
// another.
auto MemoryInUse() { return static_cast<long>(mallinfo2().uordblks + mallinfo2().hblkhd); }

auto OpenFiles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return std::distance(begin(files), end(files));
}

void Use(int rounds) {
  for (int i = 0; i < rounds; ++i) {
    for (int solve = 0; solve < 10; ++solve) user::Press("Return");
    ASSERT_EQ(aFundletWindow::Instance().AnnualDrawField().Text(), "Initial Year Draw:  $73,325");
    user::Press("F1");
    ASSERT_TRUE(GlobalModule::HelpShowing);
    user::Press("Return");
    ASSERT_FALSE(GlobalModule::HelpShowing);
    user::Press("Ctrl+P Ctrl+R");
  }
}

// Caches grow less and less from round to round, a leak grows on. Without a measure of the memory
// only the open files are compared, for which few rounds do.
TEST_F(LongSession, LeavesMemoryAndOpenFilesAsTheyWere) {
  const int rounds = MemoryInUse() > 0 ? 50 : 5;
  const long no_growth = rounds * 100L;  // bytes
  Use(rounds);
  const auto files = OpenFiles();
  long growth = no_growth;
  for (int tries = 0; tries < 16 && growth >= no_growth; ++tries) {
    const long before = MemoryInUse();
    Use(rounds);
    growth = MemoryInUse() - before;
  }
  EXPECT_LT(growth, no_growth);
  EXPECT_EQ(OpenFiles(), files);
}

}  // namespace
}  // namespace fundlet
