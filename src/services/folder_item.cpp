#include "services/folder_item.h"

#include <cstdlib>
#include <system_error>
#include <utility>

#include "services/exceptions.h"

#ifdef __APPLE__
#include <array>
#include <sys/xattr.h>
#endif

namespace fundlet {

namespace fs = std::filesystem;

FolderItem::FolderItem(fs::path path) : path_(std::move(path)), name_(PathText(path_.filename())) {}

FolderItem FolderItem::Child(std::string_view name) const {
  FolderItem child;
  if (!path_.empty()) child.path_ = path_ / fs::path(std::u8string(name.begin(), name.end()));
  child.name_ = name;
  return child;
}

bool FolderItem::Exists() const {
  std::error_code ignored;
  return !path_.empty() && fs::status(path_, ignored).type() != fs::file_type::not_found;
}

bool FolderItem::IsUnreachable() const {
  std::error_code ignored;
  return !path_.empty() && !fs::status_known(fs::status(path_, ignored));
}

void FolderItem::SetMacCreator([[maybe_unused]] std::string_view code) const {
#ifdef __APPLE__
  constexpr std::size_t kCreatorOffset = 4;
  std::array<char, 32> finder_info{};
  getxattr(path_.c_str(), XATTR_FINDERINFO_NAME, finder_info.data(), finder_info.size(), 0, 0);
  code.copy(finder_info.data() + kCreatorOffset, 4);
  setxattr(path_.c_str(), XATTR_FINDERINFO_NAME, finder_info.data(), finder_info.size(), 0, 0);
#endif
}

namespace {

// The folder that an environment variable names; empty if it names none, or names it relative to
// the current folder, which is there by chance.
fs::path FolderFromEnvironment(const char* variable) {
#ifdef _WIN32
  const std::string name = variable;
  const wchar_t* value = _wgetenv(std::wstring(name.begin(), name.end()).c_str());
#else
  const char* value = std::getenv(variable);
#endif
  const fs::path folder = value != nullptr ? fs::path(value) : fs::path();
  return folder.is_absolute() ? folder : fs::path();
}

fs::path PreferencesPath() {
#if defined(_WIN32)
  return FolderFromEnvironment("APPDATA");
#elif defined(__APPLE__)
  const fs::path home = FolderFromEnvironment("HOME");
  return home.empty() ? home : home / "Library" / "Preferences";
#else
  fs::path config = FolderFromEnvironment("XDG_CONFIG_HOME");
  if (!config.empty()) return config;
  const fs::path home = FolderFromEnvironment("HOME");
  return home.empty() ? home : home / ".config";
#endif
}

}  // namespace

FolderItem SpecialFolder::Preferences() {
  const fs::path path = PreferencesPath();
  if (path.empty()) return {};
  // A failure is reported when a file in the folder is opened or created.
  std::error_code ignored;
  const bool made = fs::create_directories(path, ignored);
  // The plan is private.
  if (made) fs::permissions(path, fs::perms::owner_all, ignored);
  return FolderItem(path);
}

}  // namespace fundlet
