// POSIX allows a wait for a condition to end without a signal. Then wxThreadEx::Wait() must continue to wait.

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>

#include <gtest/gtest.h>

#include <tests/support/replaced_function.h>
#include <tests/thread/thread_support.h>

namespace {

std::atomic<int> g_wakeUpsToCome{0};

}  // namespace

// Replaces the standard library's wait for a condition. The replacement waits in the same way, but returns early if a
// test has set g_wakeUpsToCome. A test cannot reach the thread object's private condition, and the library should have
// no code that only this test needs.
extern "C" void WaitForCondition(std::condition_variable* condition, std::unique_lock<std::mutex>* lock) __asm__(
    "_ZNSt18condition_variable4waitERSt11unique_lockISt5mutexE");

extern "C" void WaitForCondition(std::condition_variable* condition, std::unique_lock<std::mutex>* lock)
{
    static const auto original = ReplacedFunction<void(std::condition_variable*, std::unique_lock<std::mutex>*)>(
        "_ZNSt18condition_variable4waitERSt11unique_lockISt5mutexE");
    if (g_wakeUpsToCome > 0) {
        --g_wakeUpsToCome;
        condition->wait_for(*lock, std::chrono::milliseconds(1));
        return;
    }
    original(condition, lock);
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
