#ifndef FITTINGS_TESTS_SUPPORT_PATIENCE_H_
#define FITTINGS_TESTS_SUPPORT_PATIENCE_H_

#include <cstdlib>

/// Returns how many times longer than usual the tests wait: FITTINGS_TEST_PATIENCE, which is set if a tool makes
/// everything slow, otherwise 1. The tests multiply their deadlines by this number.
inline int Patience()
{
    static const int patience = [] {
        const char* const text = std::getenv("FITTINGS_TEST_PATIENCE");
        const int number = text ? std::atoi(text) : 1;
        return number > 1 ? number : 1;
    }();
    return patience;
}

#endif
