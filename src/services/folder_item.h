#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace fundlet {

// A place in the file system, whether anything is there or not. Where there is no such place, as in
// the home folder of a user who has none, it has no path: nothing exists and nothing can be made.
class FolderItem {
 public:
  FolderItem() = default;
  explicit FolderItem(std::filesystem::path path);

  // The entry of that name (UTF-8) inside this folder.
  FolderItem Child(std::string_view name) const;
  // Also True where the system cannot tell, so that nothing is overwritten; opening it then fails
  // with the reason.
  bool Exists() const;
  // True where the system cannot tell whether it exists, as in a folder that may not be entered.
  bool IsUnreachable() const;
  // The entry's own name, without its folders, in UTF-8.
  const std::string& Name() const { return name_; }
  const std::filesystem::path& Path() const { return path_; }
  // Sets the four-character creator code, where the platform has such an attribute; elsewhere it
  // does nothing.
  void SetMacCreator(std::string_view code) const;

 private:
  std::filesystem::path path_;
  std::string name_;
};

struct SpecialFolder {
  // The user's folder for preferences: $XDG_CONFIG_HOME, or ~/.config without one, and what other
  // systems have in its place. It is made, for this user alone, when it does not exist; where that
  // fails, what is then opened or created in it fails with the reason. Without a home folder the
  // result has no path.
  static FolderItem Preferences();
};

}  // namespace fundlet
