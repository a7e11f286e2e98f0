#ifndef FITTINGS_TESTS_SUPPORT_PROCESSOR_TIME_H_
#define FITTINGS_TESTS_SUPPORT_PROCESSOR_TIME_H_

#include <ctime>
#include <functional>

/// The seconds that the processor spends on @a work: what else the machine does counts for nothing.
inline double ProcessorSeconds(const std::function<void()>& work)
{
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

#endif
