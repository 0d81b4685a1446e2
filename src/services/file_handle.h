#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

#include "services/exceptions.h"
#include "services/folder_item.h"

namespace fundlet {

// One open file, for the streams. Every call that fails throws an IOException, which names the
// file. Nothing is buffered, so a failure is reported by the call that caused it. The destructor
// closes the file without reporting a failure. After Close, the handle must not be used.
class FileHandle {
 public:
  // Existing: opened for reading and writing. New: an empty file, in place of one that is there,
  // opened for writing only, so that a file that may not be read can be replaced too. NewPrivate:
  // as New, and a file that did not exist can be read by its owner alone; on Windows, by those who
  // can read its folder.
  enum class Use { Existing, New, NewPrivate };

  // Fails if the path leads to something other than a file, such as a folder or a pipe.
  FileHandle(const FolderItem& item, Use use);

  void Read(void* bytes, std::size_t count);  // fails if the file ends before
  void Write(const void* bytes, std::size_t count);
  // Moves to a byte offset from the start, at least 0. A failure is reported as FileAction::Write.
  void SetPosition(long position);
  void Close();

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  [[noreturn]] void Fail(FileAction action, int error_number) const;

  std::filesystem::path path_;
  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace fundlet
