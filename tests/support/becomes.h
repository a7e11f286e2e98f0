#ifndef FITTINGS_TESTS_SUPPORT_BECOMES_H_
#define FITTINGS_TESTS_SUPPORT_BECOMES_H_

#include <chrono>
#include <functional>
#include <thread>

#include <tests/support/patience.h>

/// Waits until @a isTrue returns true. Returns false if this takes longer than @a milliseconds times Patience(). Unlike
/// PumpUntil(), handles no events.
[[nodiscard]] inline bool Becomes(const std::function<bool()>& isTrue, int milliseconds = 60000)
{
    const auto deadline = std::chrono::steady_clock::now() + Patience() * std::chrono::milliseconds(milliseconds);
    while (!isTrue()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

#endif
