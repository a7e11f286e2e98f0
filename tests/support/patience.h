#ifndef FITTINGS_TESTS_SUPPORT_PATIENCE_H_
#define FITTINGS_TESTS_SUPPORT_PATIENCE_H_

#include <cstdlib>

/// Returns the number by which the tests multiply their deadlines. The number is the value of FITTINGS_TEST_PATIENCE,
/// which is set if a tool makes the tests slow, or else 1.
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
