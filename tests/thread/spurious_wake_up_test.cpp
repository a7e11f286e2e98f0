// A condition that wakes up without a signal, which POSIX allows.

#include <atomic>

#include <gtest/gtest.h>

#include <tests/support/replaced_function.h>
#include <tests/thread/thread_support.h>

namespace {

std::atomic<int> g_wakeUpsToCome{0};

}  // namespace

// Replaces the toolkit's wait for a condition. It waits as the toolkit does, but returns early if a test asks for it.
extern "C" wxCondError WaitForCondition(wxCondition* condition) __asm__("_ZN11wxCondition4WaitEv");

extern "C" wxCondError WaitForCondition(wxCondition* condition)
{
    static const auto original = ReplacedFunction<wxCondError(wxCondition*)>("_ZN11wxCondition4WaitEv");
    if (g_wakeUpsToCome > 0) {
        --g_wakeUpsToCome;
        return condition->WaitTimeout(1) == wxCOND_TIMEOUT ? wxCOND_NO_ERROR : wxCOND_MISC_ERROR;
    }
    return original(condition);
}

namespace {

TEST(SpuriousWakeUp, DoesNotEndTheWaitForAThread)
{
    HeldThread held;
    ASSERT_TRUE(held.thread.started.Wait());
    g_wakeUpsToCome = 3;
    wxThread::ExitCode code = nullptr;
    Helper waiter([&] { code = held.thread.Wait(); });
    EXPECT_TRUE(Becomes([] { return g_wakeUpsToCome == 0; }));
    EXPECT_TRUE(waiter.IsBlocked());
    EXPECT_FALSE(waiter.IsDone());
    held.go.Set();
    EXPECT_TRUE(waiter.Ends());
    EXPECT_EQ(code, Code(42));
}

}  // namespace
