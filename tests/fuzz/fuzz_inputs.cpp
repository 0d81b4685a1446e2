#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>

#include "plan/entry_fields.h"
#include "plan/parameters_file.h"
#include "plan/pasted_entry.h"
#include "plan/validation.h"
#include "services/text.h"
#include "tests/plan/text_form.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

// Any text reads as a number. Unless it is a rate, whose text may round it, the text shown for the
// number reads as a number with the same text.
void TryText(std::string_view text) {
  Require(Len(text) <= text.size() && !std::isnan(Val(text)));
  for (const FocusCode field : kFocusCodes) {
    Plan plan;
    ReadField(plan, field, text);
    const std::string shown = ShownText(plan, field);
    ReadField(plan, field, shown);
    Require(ParameterOf(field).rate != nullptr || ShownText(plan, field) == shown);
  }
}

// A field reads a pasted text that it accepts as the number that remains of the text without its
// separators and units.
void TryPaste(std::string_view choices) {
  constexpr std::string_view kParts[] = {"0", "1", "9", "000", ",234", " 567", "'89", ",",
                                         ".", " ", "-", "+",   "e5",   "$",    "%",   "\u2212"};
  std::string text;
  for (const char choice : choices.substr(0, 12)) {
    text += kParts[static_cast<unsigned char>(choice) % std::size(kParts)];
  }
  std::string number = ReplaceAll(text, "\u2212", "-");
  std::erase_if(number, [](char c) { return std::strchr(" ,'$%", c) != nullptr; });
  for (const FocusCode field : kFocusCodes) {
    const std::optional<std::string> entry = PastedEntry(field, text, 11);
    if (!entry) continue;
    Plan plan;
    ReadField(plan, field, *entry);
    const Parameter& parameter = ParameterOf(field);
    const double value = parameter.whole != nullptr ? static_cast<double>(plan.*parameter.whole)
                                                    : plan.*parameter.Real();
    Require(entry->size() <= 11);
    Require(value == (parameter.rate != nullptr ? PercentReading(number) : Val(number)));
  }
}

// The program starts with any file, and writes the record of one that is long enough back byte for
// byte.
void TryFile(const std::string& file) {
  static const ScratchFolder folder;
  folder.Write(kParametersFileName, file);
  Plan plan;
  TextForm form;
  StartParameters(plan, form);
  const bool reported = !form.actions.empty();
  Require(reported == (file.size() < 44));
  if (!reported) {
    BinaryStream stream = BinaryStream::Open(ParametersFile());
    WriteParameters(stream, plan);
  }
  Require(folder.Read(kParametersFileName) == file);
  DisplayParameters(plan, form);
  ErrorDetected(plan, form);
}

}  // namespace
}  // namespace fundlet

extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t count) {
  fundlet::TryText({bytes, count});
  fundlet::TryPaste({bytes, count});
  fundlet::TryFile({bytes, count});
  return 0;
}
