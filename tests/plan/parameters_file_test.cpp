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
const std::vector<std::string> kNone;
const std::vector<std::string> kBusy = {"alert File “Fundlet.Preferences” is busy."};

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
  const std::pair<std::size_t, const char*> ends_and_texts[] = {
      {2, "1998"},       {3, "40"},   {4, "-3"},      {12, "2.0"},
      {20, "1,000,000"}, {28, "5.0"}, {36, "20,000"}, {44, "100,000"}};
  for (std::size_t length = 0; length <= 50; ++length) {
    const ScratchFolder folder;
    const std::string file = (kRecord + "behind").substr(0, length);
    folder.Write(kParametersFileName, file);
    Plan plan;
    EXPECT_EQ(AlertsOfStart(plan), length < 44 ? kBusy : kNone) << length;
    for (std::size_t at = 0; at < kFieldCount; ++at) {
      const auto& [end, text] = ends_and_texts[at];
      const FocusCode field = kFocusCodes[at];
      EXPECT_EQ(ShownText(plan, field), end > length ? ShownText({}, field) : text) << length;
    }
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
    for (const FocusCode field : kFocusCodes)
      EXPECT_EQ(ShownText(plan, field), ShownText({}, field));
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
