#include "desktop/dialogs/objective_c.h"

#include <string>

#include "services/exceptions.h"

namespace fundlet {

namespace {

bool libraries_present = true;

}  // namespace

void SimulateMissingLibraries(bool missing) { libraries_present = !missing; }

void RuntimeRaiseFunctionNotFoundException(const char* function, const char* library) {
  throw RuntimeException("The function “" + std::string(function) +
                         "” was not found in the library “" + library + "”.");
}

void* LoadFunctionPointerFromLibrary(const char* function, const char* library) {
  return libraries_present ? FindFunction(function, library) : nullptr;
}

}  // namespace fundlet
