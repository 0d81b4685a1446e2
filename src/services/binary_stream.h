#pragma once

#include <cstdint>

#include "services/file_handle.h"
#include "services/folder_item.h"

namespace fundlet {

// Whole numbers and doubles in a file, each written or read at the position, which then moves on
// behind it. Every operation that fails raises an IOException; a read past the end of the file is
// such a failure. A change between reading and writing takes a SetPosition in between. After Close,
// the stream is not to be used.
class BinaryStream {
 public:
  // Opens an existing file at position 0. It is opened for writing too, also where it is only
  // read: a file that refuses that cannot be opened. `read_write` has no other value in use.
  static BinaryStream Open(const FolderItem& item, bool read_write);
  // Makes an empty file. With `overwrite` False, a file that exists already is refused.
  static BinaryStream Create(const FolderItem& item, bool overwrite);

  // True puts the least significant byte first, False (the default) the most significant one.
  bool LittleEndian = false;

  void SetPosition(std::int64_t byte);
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
