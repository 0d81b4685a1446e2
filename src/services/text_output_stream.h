#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/file_handle.h"
#include "services/folder_item.h"

namespace fundlet {

// A text file being written. Every operation that fails raises an IOException.
class TextOutputStream {
 public:
  // Makes an empty file, in place of one that is there. No item raises a NilObjectException.
  static TextOutputStream Create(const std::optional<FolderItem>& item);

  // What ends a line; the platform's own line end unless it is set.
  std::string Delimiter;

  // Writes the text and the delimiter, in one piece.
  void WriteLine(std::string_view text);
  void Close() { file_.Close(); }

 private:
  explicit TextOutputStream(const FolderItem& item);

  FileHandle file_;
};

}  // namespace fundlet
