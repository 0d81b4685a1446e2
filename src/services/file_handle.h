#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

#include "services/exceptions.h"
#include "services/folder_item.h"

namespace fundlet {

// One open file, shared by the streams: it turns each failed call into an IOException that names
// the file. Nothing is buffered, so a failure shows at the call that caused it. A handle that is
// dropped without Close closes the file and says nothing.
class FileHandle {
 public:
  // Existing: opened for reading and writing. New: an empty file, in place of one that is there,
  // opened for writing only, so that a file that may not be read can be replaced too. NewPrivate:
  // as New, and a file that did not exist can be read by its owner alone; on Windows, by those who
  // can read its folder.
  enum class Use { Existing, New, NewPrivate };

  // What is there and is not a file, such as a folder or a pipe, is refused.
  FileHandle(const FolderItem& item, Use use);

  void Read(void* bytes, std::size_t count);  // all of them, or IOException
  void Write(const void* bytes, std::size_t count);
  void SetPosition(long position);  // in bytes from the start
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
