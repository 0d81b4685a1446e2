#include "ui/about_panel.h"

#include "desktop/dialogs/objective_c.h"

namespace fundlet {

bool ShowAboutPanel() {
  using ClassLookUp = Id(const char* name);
  constexpr const char* kFunction = "NSClassFromString";
  constexpr const char* kLibrary = "Cocoa";

  const Selector shared_application = sel_registerName("sharedApplication");
  void* found = LoadFunctionPointerFromLibrary(kFunction, kLibrary);
  if (found == nullptr) RuntimeRaiseFunctionNotFoundException(kFunction, kLibrary);
  const auto class_from_string = reinterpret_cast<ClassLookUp*>(found);
  Id application = objc_msgSend(class_from_string("NSApplication"), shared_application);
  const Selector order_front = sel_registerName("orderFrontStandardAboutPanel:");
  objc_msgSend(application, order_front);
  return true;
}

}  // namespace fundlet
