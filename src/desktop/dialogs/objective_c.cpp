#include "desktop/dialogs/objective_c.h"

#include <set>
#include <string>
#include <string_view>

#ifdef __APPLE__
#include <dlfcn.h>
#include <objc/message.h>
#include <objc/runtime.h>
#endif

#include "desktop/dialogs/message_box.h"
#include "services/exceptions.h"

namespace fundlet {

#ifdef __APPLE__

namespace {

Id ClassNamed(const char* name) { return reinterpret_cast<Id>(objc_getClass(name)); }

// The system's function expects a string object; ClassNamed expects a plain string.
bool CanFind(const char* function, const char* /*library*/) {
  return dlsym(RTLD_DEFAULT, function) != nullptr;
}

}  // namespace

Selector sel_registerName(const char* name) { return ::sel_registerName(name); }

Id objc_msgSend(Id receiver, Selector message) {
  using Send = Id(Id, Selector, Id);
  return reinterpret_cast<Send*>(&::objc_msgSend)(receiver, message, nullptr);
}

#else

namespace {

// The class and the object that answer; their addresses are all that matters.
char application_class;
char application_object;

Id ClassNamed(const char* name) {
  return name == std::string_view("NSApplication") ? &application_class : nullptr;
}

bool CanFind(const char* function, const char* library) {
  return library == std::string_view("Cocoa") && function == std::string_view("NSClassFromString");
}

}  // namespace

Selector sel_registerName(const char* name) {
  static std::set<std::string> names;
  return names.emplace(name).first->c_str();
}

Id objc_msgSend(Id receiver, Selector message) {
  const auto is = [message](const char* name) { return message == sel_registerName(name); };
  if (receiver == &application_class && is("sharedApplication")) return &application_object;
  if (receiver == &application_object && is("orderFrontStandardAboutPanel:")) ShowAboutBox();
  return nullptr;
}

#endif

namespace {

bool libraries_present = true;

}  // namespace

void SimulateMissingLibraries(bool missing) { libraries_present = !missing; }

void* LoadFunctionPointerFromLibrary(const char* function, const char* library) {
  const bool found = libraries_present && CanFind(function, library);
  return found ? reinterpret_cast<void*>(&ClassNamed) : nullptr;
}

void RuntimeRaiseFunctionNotFoundException(const char* function, const char* library) {
  throw RuntimeException("The function “" + std::string(function) +
                         "” was not found in the library “" + library + "”.");
}

}  // namespace fundlet
