#include "plan/parameters_file.h"

#include <chrono>

#include <gtest/gtest.h>

#include "plan/entry_fields.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

const std::string kRecord(
    "\x07\xCE\x28\xFD\x3F\x94\x7A\xE1\x47\xAE\x14\x7B\x41\x2E\x84\x80\0\0\0\0\x3F\xA9\x99\x99\x99"
    "\x99\x99\x9A\x40\xD3\x88\0\0\0\0\0\x40\xF8\x6A\0\0\0\0\0",
    44);
const Texts kShownRecord = {"1998", "40", "-3", "2.0", "1,000,000", "5.0", "20,000", "100,000"};
const Texts kZeros = {"0", "0", "0", "0.0", "0", "0.0", "0", "0"};
const Texts kBusy = {"File “Fundlet.Preferences” is busy."};

struct Started {
  Plan plan;
  Texts alerts;
  Texts shown;

  Started() {
    StartParameters(plan, [this](const std::string& message) { alerts.push_back(message); });
    for (const FocusCode field : kFocusCodes) shown.push_back(ShownText(plan, field));
  }
};

TEST(StartParameters, RemembersTheDefaultsAtTheFirstRun) {
  const ScratchFolder folder;
  setenv("TZ", "UTC", 1);
  const auto today = floor<std::chrono::days>(std::chrono::system_clock::now());
  const int year = static_cast<int>(std::chrono::year_month_day(today).year());
  const Started started;
  EXPECT_EQ(started.alerts, Texts());
  Texts defaults = kShownRecord;
  defaults[0] = std::to_string(year), defaults[1] = "65", defaults[2] = "27";
  EXPECT_EQ(started.shown, defaults);
  std::string record = kRecord;
  record[0] = static_cast<char>(year / 256), record[1] = static_cast<char>(year % 256);
  record[2] = 65, record[3] = 27;
  EXPECT_EQ(folder.Read(kParametersFileName), record);
}

TEST(StartParameters, TakesWhatTheFileHoldsUpToItsEndAndLeavesTheFile) {
  const std::size_t ends[] = {2, 3, 4, 12, 20, 28, 36, 44};
  for (std::size_t length = 0; length <= 50; ++length) {
    const ScratchFolder folder;
    const std::string file = (kRecord + "behind").substr(0, length);
    folder.Write(kParametersFileName, file);
    const Started started;
    EXPECT_EQ(started.alerts, length < 44 ? kBusy : Texts()) << length;
    Texts expected = kShownRecord;
    for (std::size_t at = 0; at < 8; ++at) {
      if (ends[at] > length) expected[at] = kZeros[at];
    }
    EXPECT_EQ(started.shown, expected) << length;
    EXPECT_EQ(folder.Read(kParametersFileName), file);
  }
}

TEST(StartParameters, StartsWithZerosWhereTheFileCannotBeOpened) {
  const ScratchFolder folder;
  const fs::path file = folder.Path() / kParametersFileName;
  folder.Write(kParametersFileName, kRecord);
  for (const unsigned mode : {0444U, 0222U, 0U, 0111U}) {
    fs::permissions(file, fs::perms{mode});
    // And at last a folder in its place.
    if (mode == 0111) fs::remove(file), fs::create_directory(file);
    const Started started = (OrdinaryUser(), Started());
    EXPECT_EQ(started.alerts, kBusy) << std::oct << mode;
    EXPECT_EQ(started.shown, kZeros);
  }
}

TEST(StartParameters, StartsWithTheDefaultsWhereTheFileCannotBeMadeOrSeen) {
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
