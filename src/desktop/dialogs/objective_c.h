#pragma once

// The few operations by which the program asks the operating system for something by name: it
// looks a function up in a library and sends messages to objects. On a Mac they are the system's
// own. Elsewhere the desktop answers them itself, for the one thing that is asked: the standard
// about panel.
namespace fundlet {

using Id = void*;              // an object, or a class, which is an object too
using Selector = const void*;  // the name of a message, the same pointer for the same name

Selector sel_registerName(const char* name);

// Sends a message without arguments; null for an object or a message that is not known.
Id objc_msgSend(Id receiver, Selector message);

// The function of that name in the library; null where it is not found.
void* LoadFunctionPointerFromLibrary(const char* function, const char* library);

// The same, as the platform at hand finds it; for LoadFunctionPointerFromLibrary alone.
void* FindFunction(const char* function, const char* library);

// Raises the RuntimeException for a function that was not found.
[[noreturn]] void RuntimeRaiseFunctionNotFoundException(const char* function, const char* library);

// For tests: with true, every later look-up of a function fails.
void SimulateMissingLibraries(bool missing);

}  // namespace fundlet
