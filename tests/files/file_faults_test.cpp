#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <gtest/gtest.h>

#include "files/draw_schedule.h"
#include "files/remembered_parameters.h"
#include "plan/entry_fields.h"
#include "plan/parameters_file.h"
#include "tests/plan/text_form.h"
#include "tests/services/scratch_folder.h"

namespace {

enum class Fault { Error, Kill };
Fault fault = Fault::Error;
int calls_to_fault = 0;  // 0 when no call is to fail
bool harmless = false;   // whether the call that failed was one that the program can do without

bool CallFails() {
  if (calls_to_fault == 0 || --calls_to_fault > 0) return false;
  if (fault == Fault::Kill) _exit(0);
  errno = EIO;
  return true;
}

int Descriptor(void* file) { return static_cast<int>(reinterpret_cast<std::intptr_t>(file)); }

ssize_t Read(void* file, char* bytes, std::size_t count) {
  return CallFails() ? -1 : read(Descriptor(file), bytes, count);
}

// A write that fails has written a half.
ssize_t Write(void* file, const char* bytes, std::size_t count) {
  const ssize_t half = write(Descriptor(file), bytes, count / 2);
  if (half < 0 || CallFails()) return 0;
  const ssize_t rest = write(Descriptor(file), bytes + half, count - half);
  return rest < 0 ? 0 : half + rest;
}

int Seek(void* file, off64_t* position, int whence) {
  if (CallFails()) return -1;
  *position = lseek(Descriptor(file), *position, whence);
  return *position < 0 ? -1 : 0;
}

int Close(void* file) {
  const int result = close(Descriptor(file));
  return CallFails() ? -1 : result;
}

}  // namespace

extern "C" {

std::FILE* __real_fopen(const char* path, const char* mode);

// While a call is to fail, the C library's own stream over a file whose calls can fail.
std::FILE* __wrap_fopen(const char* path, const char* mode) {
  if (calls_to_fault == 0) return __real_fopen(path, mode);
  if (CallFails()) return nullptr;
  const int flags = mode[0] == 'w' ? O_CREAT | O_TRUNC : 0;
  const int file = open(path, O_RDWR | flags, 0666);
  const auto cookie = reinterpret_cast<void*>(static_cast<std::intptr_t>(file));
  return file < 0 ? nullptr : fopencookie(cookie, mode, {Read, Write, Seek, Close});
}

int stat(const char* path, struct stat* status) {
  if (!CallFails()) return fstatat(AT_FDCWD, path, status, 0);
  harmless = true;
  return -1;
}

int mkdir(const char* path, mode_t mode) {
  return CallFails() ? -1 : mkdirat(AT_FDCWD, path, mode);
}

int fchmodat(int /*folder*/, const char* path, mode_t mode, int /*flags*/) {
  if (!CallFails()) return chmod(path, mode);
  harmless = true;
  return -1;
}
}

namespace fundlet {
namespace {

std::array<std::string, 8> Shown(const Plan& plan) {
  TextForm form;
  DisplayParameters(plan, form);
  return form.texts;
}

void Start(Plan& plan) {
  StartParameters(plan, [](const std::string& message) { throw RuntimeException(message); });
}
void Remember(Plan& plan) { SaveParameters(plan, TextForm()); }
void Recall(Plan& plan) {
  TextForm form;
  try {
    RestoreParameters(plan, form);
  } catch (const IOException&) {
    EXPECT_EQ(std::count(form.actions.begin(), form.actions.end(), "focus 1"), 0);
    throw;
  }
}
void Export(Plan& plan) { SaveSchedule(plan, ParametersFile()); }

struct Operation {
  void (*run)(Plan&);
  std::string before;  // what the file holds; where that is nothing there is no file
  bool folder_missing = false;
};

const std::string kOld = std::string(44, '\x01') + "tail";
const Operation kOperations[] = {{Start, kOld},        {Start, ""},       {Remember, kOld},
                                 {Remember, ""},       {Recall, kOld},    {Recall, ""},
                                 {Export, kOld},       {Export, ""},      {Start, "", true},
                                 {Remember, "", true}, {Recall, "", true}};

// The name of the file within the scratch folder, the user's preferences folder being set.
std::string Prepare(const Operation& operation, const ScratchFolder& folder) {
  const std::string name = operation.folder_missing ? "new/folder/" : "";
  setenv("XDG_CONFIG_HOME", (folder.Path() / name).c_str(), 1);
  return name + kParametersFileName;
}

struct Outcome {
  bool failed = false;
  bool fault_met = false;
  std::string file;
  std::array<std::string, 8> plan;
};

std::ptrdiff_t OpenFiles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

Outcome RunWithFault(const Operation& operation, int at_call, const ScratchFolder& folder) {
  const std::string name = Prepare(operation, folder);
  if (!operation.before.empty()) folder.Write(name, operation.before);
  const std::ptrdiff_t open_files = OpenFiles();
  Plan plan;
  Outcome outcome;
  harmless = false;
  calls_to_fault = at_call;
  try {
    operation.run(plan);
  } catch (const RuntimeException& failure) {
    outcome.failed = true;
    EXPECT_NE(std::string(failure.what()).find(kParametersFileName), std::string::npos);
  }
  outcome.fault_met = calls_to_fault == 0;
  calls_to_fault = 0;
  EXPECT_EQ(OpenFiles(), open_files);
  outcome.file = folder.Read(name);
  outcome.plan = Shown(plan);
  return outcome;
}

// True when the new bytes have come over the old ones, or over none, up to some place.
bool IsOverwritten(const std::string& file, const std::string& before, const std::string& after) {
  const auto [place, ignored] = std::mismatch(file.begin(), file.end(), after.begin(), after.end());
  const auto length = static_cast<std::size_t>(place - file.begin());
  const std::string rest = file.substr(length);
  return rest.empty() || rest == before.substr(std::min(length, before.size()));
}

TEST(FileFaults, AreReportedAndLeaveNothingButOldAndNewValues) {
  for (const Operation& operation : kOperations) {
    const auto run = [&operation](int call) {
      return RunWithFault(operation, call, ScratchFolder());
    };
    const Outcome whole = run(0);
    ASSERT_FALSE(whole.failed);
    int call = 1;
    for (Outcome faulty = run(call); faulty.fault_met; faulty = run(++call)) {
      // A look stops nothing: whether the file can be used shows when it is opened.
      EXPECT_TRUE(faulty.failed ||
                  (harmless && faulty.file == whole.file && faulty.plan == whole.plan));
      EXPECT_TRUE(IsOverwritten(faulty.file, operation.before, whole.file)) << call;
      for (std::size_t at = 0; at < 8; ++at) {
        EXPECT_TRUE(faulty.plan[at] == whole.plan[at] || faulty.plan[at] == Shown(Plan())[at]);
      }
    }
    EXPECT_GT(call, 10) << "too few calls have failed";
  }
}

TEST(FileFaults, OfAKilledProgramLeaveAFileThatTheNextStartReadsOrReports) {
  fault = Fault::Kill;
  for (const Operation& operation : kOperations) {
    int status = 0;
    for (int call = 1; status == 0; ++call) {
      const ScratchFolder folder;
      const std::string name = Prepare(operation, folder);
      const pid_t child = fork();
      if (child == 0) {
        RunWithFault(operation, call, folder);
        _exit(1);
      }
      ASSERT_EQ(waitpid(child, &status, 0), child);
      const bool there = folder.Item(name).Exists();
      const bool cut_short = there && folder.Read(name).size() < 44;
      Plan plan;
      bool reported = false;
      StartParameters(plan, [&](const std::string&) { reported = true; });
      EXPECT_EQ(reported, cut_short);
    }
  }
  fault = Fault::Error;
}

}  // namespace
}  // namespace fundlet
