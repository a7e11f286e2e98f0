#ifndef FITTINGS_TESTS_SUPPORT_REPLACED_FUNCTION_H_
#define FITTINGS_TESTS_SUPPORT_REPLACED_FUNCTION_H_

#include <dlfcn.h>

/// Returns the library's function that a definition in the test program replaces. @a name is mangled for C++.
template <typename Function>
Function* ReplacedFunction(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

#endif
