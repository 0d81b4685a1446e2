#include "services/exceptions.h"

#include <cerrno>
#include <string_view>

namespace fundlet {

namespace {

struct Reason {
  int error_number;
  std::string_view text;
};

constexpr Reason kReasons[] = {
    {IOException::kEndOfFile, "the file is shorter than it should be"},
    {IOException::kNotAFile, "there is something of that name that is not a file"},
    {IOException::kNoFolder, "you have no folder of your own to keep it in"},
    {IOException::kNoFile, "it is not there"},
    {IOException::kNoFileName, "only a folder's name may end like this"},
    {IOException::kDeadLink, "it is a link, and what the link leads to is not there"},
    {EISDIR, "there is a folder of that name"},
    {ENOENT, "its folder is not there"},
    {ENOTDIR, "a part of its path is not a folder"},
#ifdef _WIN32
    {EACCES, "another program is using it, or you have no permission to write there"},
#else
    {EACCES, "you have no permission to write there"},
#endif
    {EPERM, "you have no permission to write there"},
    {EROFS, "the disk can only be read"},
    {ENOSPC, "there is no room left on the disk"},
#ifdef EDQUOT
    {EDQUOT, "your share of the disk is used up"},
#endif
    {EFBIG, "the file would be too large"},
    {EIO, "the disk reported a fault"},
    {ENODEV, "the disk is no longer there"},
    {ENXIO, "the disk is no longer there"},
    {ETXTBSY, "another program is using it"},
    {EBUSY, "another program is using it"},
    {EMFILE, "too many files are open"},
    {ENFILE, "too many files are open"},
    {ENAMETOOLONG, "its name is too long"},
    {ELOOP, "its links lead round in a circle"},
    {EINVAL, "its name is not allowed here"},
};

// One for each FileAction, in the order of their declaration.
constexpr std::string_view kActionTexts[] = {"opened", "created", "read", "written",
                                             "written to the end"};

}  // namespace

std::string ReasonText(int error_number) {
  for (const Reason& reason : kReasons) {
    if (reason.error_number == error_number) return std::string(reason.text);
  }
  if (error_number == 0) return "the system does not say why";
  return "the system reports fault number " + std::to_string(error_number);
}

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

IOException::IOException(FileAction action, const std::filesystem::path& file, int error_number)
    : RuntimeException("File “" + PathText(file) + "” could not be " +
                       std::string(kActionTexts[static_cast<std::size_t>(action)]) + ": " +
                       ReasonText(error_number) + "."),
      error_number_(error_number) {}

}  // namespace fundlet
