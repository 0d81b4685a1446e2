#pragma once

#include <cstdint>

#include "services/file_handle.h"
#include "services/folder_item.h"

namespace fundlet {

// Whole numbers and doubles in a file, the most significant byte first, each written or read at the
// position, which then moves on behind it. Every operation that fails raises an IOException; a read
// past the end of the file is such a failure. A change between reading and writing takes a
// SetPosition in between. After Close, the stream is not to be used.
class BinaryStream {
 public:
  // Opens an existing file at position 0, for reading and writing: a file that may only be read is
  // refused.
  static BinaryStream Open(const FolderItem& item);
  // Makes an empty file, in place of one that is there. It can only be written.
  static BinaryStream Create(const FolderItem& item);

  void SetPosition(std::int64_t byte);  // from the start of the file
  void WriteInt16(std::int16_t value);
  void WriteInt8(std::int8_t value);
  void WriteDouble(double value);
  std::int16_t ReadInt16();
  std::int8_t ReadInt8();
  double ReadDouble();
  void Close();

 private:
  BinaryStream(const FolderItem& item, FileHandle::Use use) : file_(item, use) {}
  void WriteBits(std::uint64_t bits, std::size_t width);
  std::uint64_t ReadBits(std::size_t width);

  FileHandle file_;
};

}  // namespace fundlet
