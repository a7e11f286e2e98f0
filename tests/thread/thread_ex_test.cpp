#include <fittings/thread/thread_ex.h>

#include <memory>
#include <type_traits>

#include <pthread.h>

#include <gtest/gtest.h>

#include <tests/thread/thread_support.h>

namespace {

using Thread = Working<wxThreadEx>;

static_assert(std::is_abstract_v<wxThreadEx>);
static_assert(std::has_virtual_destructor_v<wxThreadEx>);
static_assert(!std::is_base_of_v<wxThread, wxThreadEx>);
static_assert(!std::is_copy_constructible_v<Thread> && !std::is_copy_assignable_v<Thread>);

Thread::Work Returning(std::intptr_t number)
{
    return [number](Thread&) { return Code(number); };
}

class ExitCode : public testing::TestWithParam<std::intptr_t>
{
};

TEST_P(ExitCode, IsWhatEntryReturned)
{
    Thread thread(wxTHREAD_JOINABLE, Returning(GetParam()));
    EXPECT_EQ(thread.Create(0), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Run(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Wait(), Code(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(, ExitCode, testing::Values(42, 0, -1, 0x123456789ABCDEF0, INTPTR_MIN));

TEST(Wait, GivesTheSameCodeEachTime)
{
    Running thread(Returning(42));
    EXPECT_EQ(thread.Wait(), Code(42));
    EXPECT_EQ(thread.Wait(), Code(42));
    EXPECT_EQ(thread.Wait(), Code(42));
}

TEST(Wait, GivesTheCodeOfAnEntryThatReturnedLongBefore)
{
    Running thread(Returning(42));
    ASSERT_TRUE(thread.started.Wait());
    ASSERT_TRUE(HasEnded(thread.thread));
    EXPECT_EQ(thread.Wait(), Code(42));
}

// Three threads call Wait() one after the other. The thread object signals its condition only once, but m_finished
// stays true.
TEST(Wait, EndsForLaterCallersToo)
{
    Running thread(Returning(7));
    for (int i = 0; i < 3; ++i) {
        wxThread::ExitCode code = nullptr;
        Helper waiter([&] { code = thread.Wait(); });
        ASSERT_TRUE(waiter.Ends());
        EXPECT_EQ(code, Code(7));
    }
}

TEST(Wait, IsRefusedBeforeRun)
{
    Thread constructed(wxTHREAD_JOINABLE, Returning(42));
    EXPECT_EQ(constructed.Wait(), Code(-1));
    EXPECT_EQ(constructed.Create(0), wxTHREAD_NO_ERROR);
    EXPECT_EQ(constructed.Wait(), Code(-1));
    EXPECT_EQ(constructed.Run(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(constructed.Wait(), Code(42));
}

// Expects that Wait() returns the code 42, but only after @a over is set.
void ExpectWaitBlocksUntil(Signal& over, wxThreadEx& thread)
{
    wxThread::ExitCode code = nullptr;
    Helper waiter([&] { code = thread.Wait(); });
    EXPECT_TRUE(waiter.IsBlocked());
    EXPECT_FALSE(waiter.IsDone());
    over.Set();
    EXPECT_TRUE(waiter.Ends());
    EXPECT_EQ(code, Code(42));
}

TEST(Wait, BlocksUntilEntryHasReturned)
{
    HeldThread held;
    ASSERT_TRUE(held.thread.started.Wait());
    ExpectWaitBlocksUntil(held.go, held.thread);
}

// A program may end right after Wait(), so the thread must then have nothing left to do.
TEST(Wait, BlocksUntilThreadLocalObjectsAreDestroyed)
{
    static Signal over;
    struct Last
    {
        ~Last() { over.Wait(); }
    };
    Running thread([](auto&) {
        static thread_local const Last last;
        return Code(42);
    });
    ExpectWaitBlocksUntil(over, thread);
}

// The toolkit stores its data for each thread with pthread_setspecific(), as this test does.
TEST(Wait, BlocksUntilTheValuesOfKeysAreDestroyed)
{
    static Signal over;
    static pthread_key_t key;
    ASSERT_EQ(pthread_key_create(&key, [](void*) { over.Wait(); }), 0);
    Running thread([](auto&) {
        pthread_setspecific(key, &over);
        return Code(42);
    });
    ExpectWaitBlocksUntil(over, thread);
    pthread_key_delete(key);
}

TEST(Detached, IsNotWaitedFor)
{
    Signal go;
    Thread thread(wxTHREAD_DETACHED, [&](Thread&) {
        go.Wait();
        return Code(42);
    });
    EXPECT_EQ(thread.Wait(), Code(-1));
    thread.Create(0);
    EXPECT_EQ(thread.Run(), wxTHREAD_NO_ERROR);
    ASSERT_TRUE(thread.started.Wait());
    EXPECT_EQ(thread.Wait(), Code(-1));
    go.Set();
    ASSERT_TRUE(thread.WaitFor(1'000'000));
    EXPECT_EQ(thread.Wait(), Code(-1));
}

// If the thread still used the destroyed object, a sanitizer would report that.
TEST(Detached, MayBeDestroyedOnceItHasEnded)
{
    for (const bool waits : {true, false}) {
        Signal go;
        auto thread = std::make_unique<Thread>(wxTHREAD_DETACHED, [&](Thread&) { go.Wait(); });
        EXPECT_FALSE(thread->WaitFor(1'000'000)) << "it has not run";
        ASSERT_EQ(thread->Run(), wxTHREAD_NO_ERROR);
        ASSERT_TRUE(thread->started.Wait());
        EXPECT_FALSE(thread->HasEnded());
        EXPECT_FALSE(thread->WaitFor(1));
        go.Set();
        ASSERT_TRUE(waits ? thread->WaitFor(1'000'000) : Becomes([&] { return thread->HasEnded(); }));
        thread.reset();
    }
}

TEST(Destructor, WaitsUntilEntryHasReturned)
{
    Signal go;
    std::atomic<bool> returned{false};
    auto thread = std::make_unique<Running>([&](auto&) {
        go.Wait();
        returned = true;
    });
    ASSERT_TRUE(thread->started.Wait());
    bool returnedBefore = false;
    Helper owner([&] {
        thread.reset();
        returnedBefore = returned;
    });
    EXPECT_TRUE(owner.IsBlocked());
    EXPECT_FALSE(owner.IsDone());
    go.Set();
    EXPECT_TRUE(owner.Ends());
    EXPECT_TRUE(returnedBefore);
}

TEST(Destructor, DoesNotWaitForWhatNeverRan)
{
    const Thread constructed(wxTHREAD_JOINABLE, Returning(42));
}

size_t StackSizeOfThisThread()
{
    pthread_attr_t attributes;
    size_t size = 0;
    EXPECT_EQ(pthread_getattr_np(pthread_self(), &attributes), 0);
    EXPECT_EQ(pthread_attr_getstacksize(&attributes, &size), 0);
    pthread_attr_destroy(&attributes);
    return size;
}

size_t StackSizeOfThreadCreatedWith(unsigned int stackSize)
{
    Thread thread(wxTHREAD_JOINABLE, [](Thread&) { return Code(static_cast<std::intptr_t>(StackSizeOfThisThread())); });
    EXPECT_EQ(thread.Create(stackSize), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Run(), wxTHREAD_NO_ERROR);
    return reinterpret_cast<size_t>(thread.Wait());
}

TEST(Create, GivesTheDefaultStackWhateverIsAskedFor)
{
    pthread_attr_t attributes;
    size_t usual = 0;
    ASSERT_EQ(pthread_getattr_default_np(&attributes), 0);
    ASSERT_EQ(pthread_attr_getstacksize(&attributes, &usual), 0);
    pthread_attr_destroy(&attributes);

    EXPECT_EQ(StackSizeOfThreadCreatedWith(0), usual);
    EXPECT_EQ(StackSizeOfThreadCreatedWith(1024 * 1024), usual);
    EXPECT_EQ(StackSizeOfThreadCreatedWith(64 * 1024 * 1024), usual);
    EXPECT_EQ(StackSizeOfThreadCreatedWith(1), usual);
}

TEST(Create, IsRefusedOnceTheThreadExists)
{
    Thread thread(wxTHREAD_JOINABLE, Returning(42));
    EXPECT_EQ(thread.Create(0), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Create(0), wxTHREAD_RUNNING);
    EXPECT_EQ(thread.Run(), wxTHREAD_NO_ERROR);
    ASSERT_TRUE(thread.started.Wait());
    ASSERT_TRUE(HasEnded(thread.thread));
    EXPECT_EQ(thread.Create(0), wxTHREAD_RUNNING);
    EXPECT_EQ(thread.Wait(), Code(42));
}

TEST(Run, CreatesTheThreadWhenNobodyDid)
{
    Thread thread(wxTHREAD_JOINABLE, Returning(42));
    EXPECT_EQ(thread.Run(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Wait(), Code(42));
}

TEST(Run, IsRefusedWhileTheThreadRunsAndAfter)
{
    Signal go;
    std::atomic<int> calls{0};
    Thread thread(wxTHREAD_JOINABLE, [&](Thread&) {
        ++calls;
        go.Wait();
        return Code(42);
    });
    thread.Create(0);
    EXPECT_EQ(thread.Run(), wxTHREAD_NO_ERROR);
    EXPECT_EQ(thread.Run(), wxTHREAD_RUNNING);
    ASSERT_TRUE(thread.started.Wait());
    EXPECT_EQ(thread.Run(), wxTHREAD_RUNNING);
    go.Set();
    EXPECT_EQ(thread.Wait(), Code(42));
    ASSERT_TRUE(HasEnded(thread.thread));
    EXPECT_EQ(thread.Run(), wxTHREAD_RUNNING);
    EXPECT_EQ(thread.Wait(), Code(42));
    EXPECT_EQ(calls, 1);
}

TEST(Entry, RunsOnADetachedThreadOfTheToolkit)
{
    bool main = true;
    bool detached = false;
    Running([&](auto&) {
        main = wxThread::IsMain();
        detached = wxThread::This() && wxThread::This()->IsDetached();
    }).Wait();
    EXPECT_FALSE(main);
    EXPECT_TRUE(detached);
}

// For binary compatibility with hosts, the virtual table begins with the destructor's two entries and Entry().
TEST(VirtualTable, HoldsTheDestructorAndThenEntry)
{
    Signal destroyed;
    struct Watched : Thread
    {
        Watched(Work work, Signal& end) : Thread(wxTHREAD_JOINABLE, std::move(work)), m_end(end) {}
        ~Watched() override { m_end.Set(); }
        Signal& m_end;
    };
    wxThreadEx* thread = new Watched(Returning(42), destroyed);
    const auto* table = *reinterpret_cast<void* const* const*>(thread);
    EXPECT_EQ(reinterpret_cast<wxThread::ExitCode (*)(wxThreadEx*)>(table[2])(thread), Code(42));
    EXPECT_FALSE(destroyed.IsSet());
    reinterpret_cast<void (*)(wxThreadEx*)>(table[1])(thread);
    EXPECT_TRUE(destroyed.IsSet());
}

}  // namespace
