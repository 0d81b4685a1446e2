#include <set>
#include <string>
#include <string_view>

#include "desktop/dialogs/message_box.h"
#include "desktop/dialogs/objective_c.h"

namespace fundlet {

namespace {

// The class and the object that answer; their addresses are all that matters.
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

void* FindFunction(const char* function, const char* library) {
  const bool found =
      library == std::string_view("Cocoa") && function == std::string_view("NSClassFromString");
  return found ? reinterpret_cast<void*>(&ClassNamed) : nullptr;
}

}  // namespace fundlet
