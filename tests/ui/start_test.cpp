#include "tests/ui/window_fixture.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;

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

TEST_F(AStart, TakesAnyRecordAndCalculatesOrRefuses) {
  const auto number = [](const char* first, char rest) { return first + std::string(6, rest); };
  std::vector<std::string> records;
  for (const std::string& value :
       {number("\x7F\xF8", 1), std::string("\x7F\xF0\0\0\0\0\0\0", 8), number("\xFF\xF0", 0),
        number("\x7F\xEF", '\xFF'), number("\x80\x01", 0)}) {
    records.push_back("\x07\xE4\x3C\x1E" + value + value + value + value + value);
  }
  for (const std::string& record : records) {
    folder_.Write(kFile, record);
    Start();
    EXPECT_FALSE(Text("EndFundletField").empty());
    ThePlan().OKtoPrint = false;
    bool told = false;
    ExpectDialog([&](QWidget& dialog) {
      told = true;
      ByKey(Qt::Key_Escape)(dialog);
    });
    Calculate();
    if (!told) ForgetExpected();
    EXPECT_NE(told, ThePlan().OKtoPrint);
    EXPECT_EQ(folder_.Read(kFile), record);
    EndProgram();
  }
}

}  // namespace
}  // namespace fundlet
