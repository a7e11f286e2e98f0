#ifndef FITTINGS_FUZZ_CHECK_H_
#define FITTINGS_FUZZ_CHECK_H_

#include <cstdio>
#include <cstdlib>

/// Ends the process, and so the fuzzer with this input as its finding, when @a holds is false.
inline void Check(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

#endif
