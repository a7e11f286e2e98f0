#ifndef FITTINGS_FUZZ_CHECK_H_
#define FITTINGS_FUZZ_CHECK_H_

#include <cstdio>
#include <cstdlib>

/// Ends the process when @a holds is false. The fuzzer then reports its current input as a finding.
inline void Check(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

#endif
