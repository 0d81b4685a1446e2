#include <dlfcn.h>
#include <objc/message.h>
#include <objc/runtime.h>

#include "desktop/dialogs/objective_c.h"

namespace fundlet {

namespace {

Id ClassNamed(const char* name) { return reinterpret_cast<Id>(objc_getClass(name)); }

}  // namespace

Selector sel_registerName(const char* name) { return ::sel_registerName(name); }

Id objc_msgSend(Id receiver, Selector message) {
  using Send = Id(Id, Selector, Id);
  return reinterpret_cast<Send*>(&::objc_msgSend)(receiver, message, nullptr);
}

// The system's function expects a string object; ClassNamed expects a plain string.
void* FindFunction(const char* function, const char* /*library*/) {
  const bool found = dlsym(RTLD_DEFAULT, function) != nullptr;
  return found ? reinterpret_cast<void*>(&ClassNamed) : nullptr;
}

}  // namespace fundlet
