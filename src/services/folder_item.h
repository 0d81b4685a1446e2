#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace fundlet {

// A place in the file system, whether a file or folder is there or not. It has no path if there is
// no such place, as in the home folder of a user who has none: nothing exists in it, and to open or
// create something in it fails.
class FolderItem {
 public:
  FolderItem() = default;
  explicit FolderItem(std::filesystem::path path);

  // The entry of that name (UTF-8) inside this folder.
  FolderItem Child(std::string_view name) const;
  // Also True if the system cannot tell, so that nothing is overwritten; to open the file then
  // fails with the reason.
  bool Exists() const;
  // True if the system cannot tell whether it exists, as in a folder that may not be entered.
  bool IsUnreachable() const;
  // The entry's own name, without its folders, in UTF-8.
  const std::string& Name() const { return name_; }
  const std::filesystem::path& Path() const { return path_; }
  // Sets the creator code, four characters, on a Mac; elsewhere files have none, and it does
  // nothing. Reports no failure.
  void SetMacCreator(std::string_view code) const;

 private:
  std::filesystem::path path_;
  std::string name_;
};

struct SpecialFolder {
  // The user's folder for preferences: $XDG_CONFIG_HOME or, without it, ~/.config; on a Mac
  // ~/Library/Preferences, on Windows %APPDATA%. If it does not exist, it is created, for this user
  // alone; if that fails, to open or create a file in it fails with the reason. The result has no
  // path if the environment names no such folder by an absolute path.
  static FolderItem Preferences();
};

}  // namespace fundlet
