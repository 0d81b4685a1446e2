#include "tests/ui/window_fixture.h"

namespace fundlet {
namespace {

using AStart = FundletTest;

constexpr const char* kFile = "Fundlet.Preferences";
const std::vector<std::string> kBusy = {"File “Fundlet.Preferences” is busy."};

TEST_F(AStart, GoesOnAfterAFileThatCannotBeReadAndLeavesItAlone) {
  for (const std::string& bytes : {std::string(), std::string(3, 'x'), std::string(43, '\7')}) {
    folder_.Write(kFile, bytes);
    ExpectDialog(ByKey(Qt::Key_Return));
    Start();
    EXPECT_EQ(TakeDialogs(), kBusy);
    EXPECT_EQ(FocusName(), "StartYearField");
    user::Type("2010");
    user::Key(Qt::Key_Tab);
    EXPECT_EQ(Text("StartYearField"), "2010");
    EXPECT_EQ(folder_.Read(kFile), bytes);
    EndProgram();
  }
}

TEST_F(AStart, TakesNumbersThatAreNoneAndCalculatesOrRefuses) {
  for (const char* value : {"\x7F\xF8\1\1\1\1\1\1", "\x7F\xEF\1\1\1\1\1\1"}) {
    std::string record = "\x07\xE4\x3C\x1E";
    for (int number = 0; number < 5; ++number) record += value;
    folder_.Write(kFile, record);
    Start();
    ExpectDialog(ByKey(Qt::Key_Escape));
    Calculate();
    const bool told = !TakeDialogs().empty();
    if (!told) ForgetExpected();
    EXPECT_NE(told, ThePlan().OKtoPrint);
    EXPECT_EQ(folder_.Read(kFile), record);
    EndProgram();
  }
}

}  // namespace
}  // namespace fundlet
