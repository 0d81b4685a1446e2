#pragma once

// The operations by which the program looks up a function in a library and sends messages to
// objects, both by name. On a Mac they are the system's own. Elsewhere src/desktop imitates those
// that show the standard about panel, which are all that the program uses.
namespace fundlet {

using Id = void*;              // an object, or a class, which is an object too
using Selector = const void*;  // the name of a message, the same pointer for the same name

Selector sel_registerName(const char* name);

// Sends a message without arguments and returns the result. Where it is imitated, null for every
// other object or message than those of the about panel.
Id objc_msgSend(Id receiver, Selector message);

// The function of that name in the library; null if it is not found.
void* LoadFunctionPointerFromLibrary(const char* function, const char* library);

// The part of LoadFunctionPointerFromLibrary that differs between platforms.
void* FindFunction(const char* function, const char* library);

// Raises the RuntimeException for a function that was not found.
[[noreturn]] void RuntimeRaiseFunctionNotFoundException(const char* function, const char* library);

// For tests: with true, every later look-up of a function fails.
void SimulateMissingLibraries(bool missing);

}  // namespace fundlet
