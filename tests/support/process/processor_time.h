#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_PROCESSOR_TIME_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_PROCESSOR_TIME_H_

#include <ctime>
#include <functional>

#include <tests/support/patience.h>

/// Returns the seconds that the processor spends on @a work, divided by Patience(). The time of other processes does
/// not count.
inline double ProcessorSeconds(const std::function<void()>& work)
{
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / Patience();
}

#endif
