#include "plan/parameters_file.h"

#include <chrono>
#include <random>

#include <gtest/gtest.h>

#include "plan/entry_fields.h"
#include "plan/validation.h"
#include "tests/plan/text_form.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;
const std::vector<std::string> kBusy = {"File “Fundlet.Preferences” is busy."};
// A record of 1998, 40 years old, -3 years left, 2 %, $1,000,000, 5 %, $20,000 and $100,000.
const std::string kRecord(
    "\x07\xCE\x28\xFD\x3F\x94\x7A\xE1\x47\xAE\x14\x7B\x41\x2E\x84\x80\0\0\0\0\x3F\xA9\x99\x99\x99"
    "\x99\x99\x9A\x40\xD3\x88\0\0\0\0\0\x40\xF8\x6A\0\0\0\0\0",
    44);

std::vector<std::string> Start(Plan& plan) {
  std::vector<std::string> alerts;
  StartParameters(plan, [&](const std::string& message) { alerts.push_back(message); });
  return alerts;
}

std::vector<std::string> Shown(const Plan& plan) {
  std::vector<std::string> texts;
  for (const FocusCode field : kFocusCodes) texts.push_back(ShownText(plan, field));
  return texts;
}

const std::vector<std::string> kZeros = Shown(Plan());

TEST(StartParameters, RemembersTheDefaultsAtTheFirstRun) {
  const ScratchFolder folder;
  setenv("TZ", "UTC", 1);
  const auto today = floor<std::chrono::days>(std::chrono::system_clock::now());
  const int year = static_cast<int>(std::chrono::year_month_day(today).year());
  Plan plan;
  EXPECT_TRUE(Start(plan).empty());
  EXPECT_EQ(Shown(plan), (std::vector<std::string>{std::to_string(year), "65", "27", "2.0",
                                                   "1,000,000", "5.0", "20,000", "100,000"}));
  const std::string file = folder.Read(kParametersFileName);
  EXPECT_EQ(file.substr(0, 4),
            std::string{static_cast<char>(year >> 8), static_cast<char>(year), 65, 27});
  EXPECT_EQ(file.substr(4), kRecord.substr(4));
}

TEST(StartParameters, TakesWhatTheFileHoldsAndLeavesTheFile) {
  const ScratchFolder folder;
  folder.Write(kParametersFileName, kRecord + "tail");
  Plan plan;
  EXPECT_TRUE(Start(plan).empty());
  EXPECT_EQ(Shown(plan), (std::vector<std::string>{"1998", "40", "-3", "2.0", "1,000,000", "5.0",
                                                   "20,000", "100,000"}));
  EXPECT_EQ(folder.Read(kParametersFileName), kRecord + "tail");
}

TEST(StartParameters, KeepsTheValuesBeforeTheEndOfAShortFile) {
  const std::size_t ends[] = {2, 3, 4, 12, 20, 28, 36, 44};
  for (std::size_t length = 0; length < kRecord.size(); ++length) {
    const ScratchFolder folder;
    folder.Write(kParametersFileName, kRecord.substr(0, length));
    Plan whole;
    whole.StartYear = 1998, whole.StartAge = 40, whole.YearsLeft = -3, whole.COLA = 0.02;
    whole.StartFundlet = 1e6, whole.FundletAPR = 0.05, whole.SocialSecurity = 2e4,
    whole.EndFundlet = 1e5;
    std::vector<std::string> expected = Shown(whole);
    for (std::size_t at = 0; at < 8; ++at) {
      if (ends[at] > length) expected[at] = kZeros[at];
    }
    Plan plan;
    EXPECT_EQ(Start(plan), kBusy) << length;
    EXPECT_EQ(Shown(plan), expected) << length;
    EXPECT_EQ(folder.Read(kParametersFileName), kRecord.substr(0, length));
  }
}

TEST(StartParameters, StartsWithZerosWhereTheFileCannotBeOpened) {
  const ScratchFolder folder;
  Plan plan;
  folder.Write(kParametersFileName, kRecord);
  fs::permissions(folder.Path() / kParametersFileName, fs::perms{0444});
  {
    const OrdinaryUser user;
    EXPECT_EQ(Start(plan), kBusy) << "a file that cannot be written";
  }
  fs::remove(folder.Path() / kParametersFileName);
  fs::create_directory(folder.Path() / kParametersFileName);
  EXPECT_EQ(Start(plan), kBusy) << "a folder";
  EXPECT_EQ(Shown(plan), kZeros);
}

TEST(StartParameters, StartsWithTheDefaultsWhereTheFileCannotBeMade) {
  const ScratchFolder folder;
  fs::permissions(folder.Path(), fs::perms{0555});
  folder.Write("file", "");
  for (const char* place : {"", "/file", nullptr}) {
    setenv("XDG_CONFIG_HOME", (folder.Path().string() + (place != nullptr ? place : "")).c_str(),
           1);
    if (place == nullptr) unsetenv("XDG_CONFIG_HOME"), unsetenv("HOME");
    const OrdinaryUser user;
    Plan plan;
    EXPECT_EQ(Start(plan), kBusy);
    EXPECT_EQ(plan.StartAge, 65);
    EXPECT_EQ(plan.EndFundlet, 100000);
  }
}

TEST(StartParameters, TakesAnyFortyFourBytes) {
  const ScratchFolder folder;
  std::mt19937 random(7);
  for (int count = 0; count < 500; ++count) {
    std::string bytes(44, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % 8 == 0 ? 0xFF : random());
    folder.Write(kParametersFileName, bytes);
    Plan plan;
    EXPECT_TRUE(Start(plan).empty());
    TextForm form;
    DisplayParameters(plan, form);
    ErrorDetected(plan, form);
    EXPECT_EQ(folder.Read(kParametersFileName), bytes);
  }
}

}  // namespace
}  // namespace fundlet
