#include "services/text_output_stream.h"

#include <string>

namespace fundlet {

namespace {

#ifdef _WIN32
constexpr const char* kLineEnd = "\r\n";
#else
constexpr const char* kLineEnd = "\n";
#endif

}  // namespace

TextOutputStream::TextOutputStream(const FolderItem& item) : file_(item, FileHandle::Use::New) {}

TextOutputStream TextOutputStream::Create(const std::optional<FolderItem>& item) {
  if (!item) throw NilObjectException("No file was named to write the text to.");
  return TextOutputStream(*item);
}

void TextOutputStream::WriteLine(std::string_view text) {
  std::string line(text);
  line += kLineEnd;
  file_.Write(line.data(), line.size());
}

}  // namespace fundlet
