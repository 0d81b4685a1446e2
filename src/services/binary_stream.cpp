#include "services/binary_stream.h"

#include <array>
#include <bit>
#include <limits>

namespace fundlet {

static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8);

BinaryStream BinaryStream::Open(const FolderItem& item) {
  return {item, FileHandle::Use::Existing};
}

BinaryStream BinaryStream::Create(const FolderItem& item) {
  return {item, FileHandle::Use::NewPrivate};
}

void BinaryStream::SetPosition(std::int64_t byte) { file_.SetPosition(static_cast<long>(byte)); }

void BinaryStream::Close() { file_.Close(); }

void BinaryStream::WriteBits(std::uint64_t bits, std::size_t width) {
  std::array<std::uint8_t, sizeof(bits)> bytes{};
  for (std::size_t at = width; at > 0; bits >>= 8) bytes.at(--at) = bits & 0xFF;
  file_.Write(bytes.data(), width);
}

std::uint64_t BinaryStream::ReadBits(std::size_t width) {
  std::array<std::uint8_t, sizeof(std::uint64_t)> bytes{};
  file_.Read(bytes.data(), width);
  std::uint64_t bits = 0;
  for (std::size_t at = 0; at < width; ++at) bits = bits << 8 | bytes.at(at);
  return bits;
}

void BinaryStream::WriteInt16(std::int16_t value) {
  WriteBits(static_cast<std::uint16_t>(value), 2);
}
void BinaryStream::WriteInt8(std::int8_t value) { WriteBits(static_cast<std::uint8_t>(value), 1); }
void BinaryStream::WriteDouble(double value) { WriteBits(std::bit_cast<std::uint64_t>(value), 8); }

std::int16_t BinaryStream::ReadInt16() {
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(ReadBits(2)));
}

std::int8_t BinaryStream::ReadInt8() {
  return static_cast<std::int8_t>(static_cast<std::uint8_t>(ReadBits(1)));
}

double BinaryStream::ReadDouble() { return std::bit_cast<double>(ReadBits(8)); }

}  // namespace fundlet
