#include "plan/parameters_file.h"

#include <chrono>

#include <gtest/gtest.h>

#include "plan/entry_fields.h"
#include "tests/plan/text_form.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;
using enum FocusCode;

const std::string kRecord(
    "\x07\xCE\x28\xFD\x3F\x94\x7A\xE1\x47\xAE\x14\x7B\x41\x2E\x84\x80\0\0\0\0\x3F\xA9\x99\x99\x99"
    "\x99\x99\x9A\x40\xD3\x88\0\0\0\0\0\x40\xF8\x6A\0\0\0\0\0",
    44);
const Texts kShownRecord = {{StartYear, "1998"},         {StartAge, "40"},
                            {YearsLeft, "-3"},           {COLA, "2.0"},
                            {StartFundlet, "1,000,000"}, {FundletAPR, "5.0"},
                            {SocialSecurity, "20,000"},  {EndFundlet, "100,000"}};
const Texts kZeros = {{StartYear, "0"},      {StartAge, "0"},     {YearsLeft, "0"},
                      {COLA, "0.0"},         {StartFundlet, "0"}, {FundletAPR, "0.0"},
                      {SocialSecurity, "0"}, {EndFundlet, "0"}};
const std::vector<std::string> kNone;
const std::vector<std::string> kBusy = {"alert File “Fundlet.Preferences” is busy."};

// A start, its alerts, and the texts that the fields then show.
struct Started {
  Plan plan;
  std::vector<std::string> alerts;
  Texts shown;

  Started() {
    TextForm form;
    StartParameters(plan, form);
    alerts = form.actions;
    for (const FocusCode field : kFocusCodes) shown[field] = ShownText(plan, field);
  }
};

TEST(StartParameters, RemembersTheDefaultsAtTheFirstRun) {
  const ScratchFolder folder;
  setenv("TZ", "UTC", 1);
  const auto today = floor<std::chrono::days>(std::chrono::system_clock::now());
  const int year = static_cast<int>(std::chrono::year_month_day(today).year());
  const Started started;
  EXPECT_EQ(started.alerts, kNone);
  Texts defaults = kShownRecord;
  defaults[StartYear] = std::to_string(year);
  defaults[StartAge] = "65";
  defaults[YearsLeft] = "27";
  EXPECT_EQ(started.shown, defaults);
  std::string record = kRecord;
  record[0] = static_cast<char>(year / 256), record[1] = static_cast<char>(year % 256);
  record[2] = 65, record[3] = 27;
  EXPECT_EQ(folder.Read(kParametersFileName), record);
}

TEST(StartParameters, ReadsTheFileUpToItsEndAndDoesNotChangeIt) {
  const std::pair<FocusCode, std::size_t> ends[] = {
      {StartYear, 2},     {StartAge, 3},    {YearsLeft, 4},       {COLA, 12},
      {StartFundlet, 20}, {FundletAPR, 28}, {SocialSecurity, 36}, {EndFundlet, 44}};
  for (std::size_t length = 0; length <= 50; ++length) {
    const ScratchFolder folder;
    const std::string file = (kRecord + "behind").substr(0, length);
    folder.Write(kParametersFileName, file);
    const Started started;
    EXPECT_EQ(started.alerts, length < 44 ? kBusy : kNone) << length;
    Texts expected = kShownRecord;
    for (const auto& [field, end] : ends) {
      if (end > length) expected[field] = kZeros.at(field);
    }
    EXPECT_EQ(started.shown, expected) << length;
    EXPECT_EQ(folder.Read(kParametersFileName), file);
  }
}

TEST(StartParameters, StartsWithZerosIfTheFileCannotBeOpened) {
  const ScratchFolder folder;
  const fs::path file = folder.Path() / kParametersFileName;
  folder.Write(kParametersFileName, kRecord);
  for (const unsigned mode : {0444U, 0222U, 0U, 0111U}) {
    fs::permissions(file, fs::perms{mode});
    // The last case is a folder in place of the file.
    if (mode == 0111) fs::remove(file), fs::create_directory(file);
    const Started started = (OrdinaryUser(), Started());
    EXPECT_EQ(started.alerts, kBusy) << std::oct << mode;
    EXPECT_EQ(started.shown, kZeros);
  }
}

TEST(StartParameters, StartsWithTheDefaultsIfTheFileCannotBeCreatedOrSeen) {
  const ScratchFolder folder;
  folder.Write("file", "");
  for (const char* name : {"sealed", "closed"}) fs::create_directory(folder.Path() / name);
  folder.Write(std::string("closed/") + kParametersFileName, kRecord);
  fs::permissions(folder.Path() / "sealed", fs::perms{0555});
  fs::permissions(folder.Path() / "closed", fs::perms::none);
  unsetenv("HOME");
  for (const std::string place : {"sealed", "sealed/folder", "file/folder", "no home", "closed"}) {
    setenv("XDG_CONFIG_HOME", place == "no home" ? "" : (folder.Path() / place).c_str(), 1);
    const Started started = (OrdinaryUser(), Started());
    EXPECT_EQ(started.alerts, kBusy) << place;
    EXPECT_EQ(started.plan.EndFundlet, 100000);
  }
  fs::permissions(folder.Path() / "closed", fs::perms::all);
  EXPECT_EQ(folder.Read(std::string("closed/") + kParametersFileName), kRecord);
}

}  // namespace
}  // namespace fundlet
