#ifndef FITTINGS_TESTS_SUPPORT_REPLACED_FUNCTION_H_
#define FITTINGS_TESTS_SUPPORT_REPLACED_FUNCTION_H_

#include <dlfcn.h>

/// Returns the original function of a library that the test program replaces by its own function. @a name is the
/// mangled name of a C++ function, or the name of a C function.
template <typename Function>
Function* ReplacedFunction(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

#endif
