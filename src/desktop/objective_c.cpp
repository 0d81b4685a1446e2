#include "desktop/objective_c.h"

#include <set>
#include <string>
#include <string_view>

#include "services/exceptions.h"

#ifdef __APPLE__
#include <dlfcn.h>
#include <objc/message.h>
#include <objc/runtime.h>
#else
#include "desktop/about_box.h"
#endif

namespace fundlet {

namespace {

bool libraries_present = true;

}  // namespace

void SetLibrariesPresent(bool present) { libraries_present = present; }

void RuntimeRaiseFunctionNotFoundException(const char* function, const char* library) {
  throw RuntimeException("The function “" + std::string(function) +
                         "” was not found in the library “" + library + "”.");
}

#ifdef __APPLE__

namespace {

Id ClassNamed(const char* name) { return reinterpret_cast<Id>(objc_getClass(name)); }

}  // namespace

Selector sel_registerName(const char* name) { return ::sel_registerName(name); }

Id objc_msgSend(Id receiver, Selector message) {
  using Send = Id(Id, Selector, Id);
  return reinterpret_cast<Send*>(&::objc_msgSend)(receiver, message, nullptr);
}

// The function that is asked for takes the system's own kind of string; this one takes a plain one.
void* LoadFunctionPointerFromLibrary(const char* function, const char* /*library*/) {
  const bool found = libraries_present && dlsym(RTLD_DEFAULT, function) != nullptr;
  return found ? reinterpret_cast<void*>(&ClassNamed) : nullptr;
}

#else

namespace {

// The class and the object that answer, known by their addresses.
char application_class;
char application_object;

Id ClassNamed(const char* name) {
  return name == std::string_view("NSApplication") ? &application_class : nullptr;
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

void* LoadFunctionPointerFromLibrary(const char* function, const char* library) {
  const bool found = libraries_present && library == std::string_view("Cocoa") &&
                     function == std::string_view("NSClassFromString");
  return found ? reinterpret_cast<void*>(&ClassNamed) : nullptr;
}

#endif

}  // namespace fundlet
