#pragma once

#include <cstdint>

#include "services/file_handle.h"
#include "services/folder_item.h"

namespace fundlet {

// Whole numbers and doubles in a file, the most significant byte first. Each is written or read at
// the position, which then moves behind it. Every operation that fails throws an IOException; a
// read past the end of the file fails. SetPosition must be called between reading and writing.
// After Close, the stream must not be used.
class BinaryStream {
 public:
  // Opens an existing file at position 0, for reading and writing; fails for a file that the user
  // may only read.
  static BinaryStream Open(const FolderItem& item);
  // Creates an empty file, to be written only. It replaces the contents of a file that is there,
  // which keeps its permissions; a new file can be read by its owner alone.
  static BinaryStream Create(const FolderItem& item);

  void SetPosition(std::int64_t byte);  // from the start of the file, at least 0
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
