#include "services/file_handle.h"

#include <cerrno>
#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/stat.h>
#endif

namespace fundlet {

namespace fs = std::filesystem;

namespace {

std::FILE* OpenFile(const fs::path& path, FileHandle::Use use) {
  const bool existing = use == FileHandle::Use::Existing;
#ifdef _WIN32
  return _wfopen(path.c_str(), existing ? L"r+b" : L"wb");
#else
  if (use != FileHandle::Use::NewPrivate) return std::fopen(path.c_str(), existing ? "r+b" : "wb");
  // fopen would create the file with rights for others, if only for a moment.
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
  return file < 0 ? nullptr : fdopen(file, "wb");
#endif
}

// The number of the failure if the path names something other than a file; otherwise 0.
int FaultOfKind(const fs::path& path) {
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  if (fs::is_directory(status)) return EISDIR;
  if (!path.has_filename()) return IOException::kNoFileName;
  const bool other = fs::exists(status) && !fs::is_regular_file(status);
  return other ? IOException::kNotAFile : 0;
}

// The number of the failure to open a file, given that of the system, which reports ENOENT whatever
// is missing: the folder, the target of a link or the file.
int FaultOfOpening(const fs::path& path, int error_number) {
  std::error_code ignored;
  if (error_number != ENOENT || !fs::exists(path.parent_path(), ignored)) return error_number;
  const bool is_link = fs::is_symlink(fs::symlink_status(path, ignored));
  return is_link ? IOException::kDeadLink : IOException::kNoFile;
}

}  // namespace

FileHandle::FileHandle(const FolderItem& item, Use use) : path_(item.Path()) {
  const FileAction action = use == Use::Existing ? FileAction::Open : FileAction::Create;
  if (path_.empty()) throw IOException(action, item.Name(), IOException::kNoFolder);
  if (const int fault = FaultOfKind(path_); fault != 0) Fail(action, fault);
  errno = 0;
  file_.reset(OpenFile(path_, use));
  if (!file_) Fail(action, FaultOfOpening(path_, errno));
  std::setvbuf(file_.get(), nullptr, _IONBF, 0);
}

void FileHandle::Fail(FileAction action, int error_number) const {
  throw IOException(action, path_, error_number);
}

void FileHandle::Read(void* bytes, std::size_t count) {
  errno = 0;
  if (std::fread(bytes, 1, count, file_.get()) == count) return;
  Fail(FileAction::Read, std::ferror(file_.get()) != 0 ? errno : IOException::kEndOfFile);
}

void FileHandle::Write(const void* bytes, std::size_t count) {
  errno = 0;
  if (std::fwrite(bytes, 1, count, file_.get()) != count) Fail(FileAction::Write, errno);
}

void FileHandle::SetPosition(long position) {
  errno = 0;
  if (std::fseek(file_.get(), position, SEEK_SET) != 0) Fail(FileAction::Write, errno);
}

void FileHandle::Close() {
  errno = 0;
  if (std::fclose(file_.release()) != 0) Fail(FileAction::Close, errno);
}

}  // namespace fundlet
