#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_PROCESSOR_TIME_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_PROCESSOR_TIME_H_

#include <ctime>
#include <functional>

#include <tests/support/patience.h>

/// The seconds that the processor spends on @a work: what else the machine does counts for nothing, nor does what a
/// tool takes that makes all slow.
inline double ProcessorSeconds(const std::function<void()>& work)
{
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / Patience();
}

#endif
