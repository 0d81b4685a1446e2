#pragma once

#include <optional>
#include <string_view>

#include "services/file_handle.h"
#include "services/folder_item.h"

namespace fundlet {

// A text file being written. Every operation that fails throws an IOException. After Close, the
// stream must not be used.
class TextOutputStream {
 public:
  // Creates an empty file, in place of one that is there. Throws NilObjectException for nullopt.
  static TextOutputStream Create(const std::optional<FolderItem>& item);

  // Writes the text and the platform's own line end, in one piece.
  void WriteLine(std::string_view text);
  void Close() { file_.Close(); }

 private:
  explicit TextOutputStream(const FolderItem& item);

  FileHandle file_;
};

}  // namespace fundlet
