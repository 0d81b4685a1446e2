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
const std::vector<std::string> kNone;
const std::vector<std::string> kBusy = {"alert File “Fundlet.Preferences” is busy."};

Texts ShownTexts(const Plan& plan) {
  Texts shown;
  for (const FocusCode field : kFocusCodes) shown[field] = ShownText(plan, field);
  return shown;
}

// Starts with the plan; returns the alerts.
std::vector<std::string> AlertsOfStart(Plan& plan) {
  TextForm form;
  StartParameters(plan, form);
  return form.actions;
}

TEST(StartParameters, RemembersTheDefaultsAtTheFirstRun) {
  const ScratchFolder folder;
  setenv("TZ", "UTC", 1);
  const auto today = floor<std::chrono::days>(std::chrono::system_clock::now());
  const int year = static_cast<int>(std::chrono::year_month_day(today).year());
  Plan plan;
  EXPECT_EQ(AlertsOfStart(plan), kNone);
  EXPECT_EQ(plan.StartYear, year);
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
    Plan plan;
    EXPECT_EQ(AlertsOfStart(plan), length < 44 ? kBusy : kNone) << length;
    Texts expected = kShownRecord;
    for (const auto& [field, end] : ends) {
      if (end > length) expected[field] = ShownText(Plan(), field);
    }
    EXPECT_EQ(ShownTexts(plan), expected) << length;
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
    Plan plan;
    EXPECT_EQ((OrdinaryUser(), AlertsOfStart(plan)), kBusy) << std::oct << mode;
    EXPECT_EQ(ShownTexts(plan), ShownTexts(Plan()));
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
    Plan plan;
    EXPECT_EQ((OrdinaryUser(), AlertsOfStart(plan)), kBusy) << place;
    EXPECT_EQ(plan.EndFundlet, 100000);
  }
  fs::permissions(folder.Path() / "closed", fs::perms::all);
  EXPECT_EQ(folder.Read(std::string("closed/") + kParametersFileName), kRecord);
}

}  // namespace
}  // namespace fundlet
