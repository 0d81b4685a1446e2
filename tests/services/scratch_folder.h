#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <stdlib.h>
#include <string>
#ifndef _WIN32
#include <unistd.h>
#endif

#include "services/folder_item.h"

namespace fundlet {

// The message of the exception that the action throws; empty if it throws none.
inline std::string ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& error) {
    return error.what();
  }
  return "";
}

// A new folder, which is also the user's preferences folder, until the object is destroyed.
class ScratchFolder {
 public:
  ScratchFolder() {
    std::filesystem::create_directory(path_);
    std::filesystem::permissions(path_, std::filesystem::perms{0777});
#ifdef _WIN32
    _putenv_s("APPDATA", path_.string().c_str());
#else
    setenv("XDG_CONFIG_HOME", path_.c_str(), 1);
#endif
  }
  ~ScratchFolder() { std::filesystem::remove_all(path_); }

  const std::filesystem::path& Path() const { return path_; }
  FolderItem Item(const std::string& name) const { return FolderItem(path_ / name); }
  void Write(const std::string& name, const std::string& bytes) const {
    // Some file systems wait for the disk if an existing file is emptied and written again.
    std::filesystem::remove(path_ / name);
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(path_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path path_ = std::filesystem::temp_directory_path() /
                                ("fundlet-" + std::to_string(std::random_device()()));
};

#ifndef _WIN32
// Until its destruction, root has only the permissions of an ordinary user; other users keep
// theirs.
class OrdinaryUser {
 public:
  OrdinaryUser() { Become(uid_ == 0 ? kNobody : uid_); }
  ~OrdinaryUser() { Become(uid_); }

 private:
  static constexpr uid_t kNobody = 65534;
  static void Become(uid_t user) {
    if (seteuid(user) != 0) std::abort();
  }
  uid_t uid_ = geteuid();
};
#endif

}  // namespace fundlet
