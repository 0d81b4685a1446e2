#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace fundlet {

// A place in the file system, whether anything is there or not. One without a path stands for a
// place that cannot be had: nothing exists there and nothing can be made there.
class FolderItem {
 public:
  FolderItem() = default;
  explicit FolderItem(std::filesystem::path path);

  // The entry of that name (UTF-8) inside this folder.
  FolderItem Child(std::string_view name) const;
  // Also True where the system cannot tell: nothing may then be put in its place unasked, and to
  // open it says why.
  bool Exists() const;
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
  // The user's folder for preferences. It is made when it does not exist. Where the user has no
  // home folder, the result has no path.
  static FolderItem Preferences();
};

}  // namespace fundlet
