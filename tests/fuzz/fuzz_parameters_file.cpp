#include <cstdlib>
#include <string>

#include "plan/entry_fields.h"
#include "plan/parameters_file.h"
#include "plan/validation.h"
#include "tests/plan/text_form.h"
#include "tests/services/scratch_folder.h"

// Any file starts the program; one that is long enough is remembered again byte for byte.
extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t count) {
  using namespace fundlet;
  static const ScratchFolder folder;
  const std::string file(bytes, count);
  folder.Write(kParametersFileName, file);
  Plan plan;
  bool reported = false;
  StartParameters(plan, [&](const std::string&) { reported = true; });
  if (reported != (count < 44)) std::abort();
  if (!reported) {
    BinaryStream stream = BinaryStream::Open(ParametersFile());
    WriteParameters(stream, plan);
  }
  if (folder.Read(kParametersFileName) != file) std::abort();
  TextForm form;
  DisplayParameters(plan, form);
  ErrorDetected(plan, form);
  return 0;
}
