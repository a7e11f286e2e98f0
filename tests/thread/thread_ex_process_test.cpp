// Thread objects in a process of their own.

#include <cstdlib>

#include <gtest/gtest.h>

#include <tests/support/process/child_process.h>

namespace {

std::string Probe(const char* question)
{
    return RunChild({THREAD_PROBE, question});
}

// wxTHREAD_NO_RESOURCE is 1, wxTHREAD_RUNNING is 2. Run() of a toolkit thread that could not be created returns
// wxTHREAD_RUNNING.
TEST(WithoutRoomForAThread, RunFailsAndThereIsNothingToWaitFor)
{
    EXPECT_EQ(Probe("no-room"), "limited 1\n"
                                "create 1\n"
                                "run 2\n"
                                "wait -1\n"
                                "started 0\n"
                                "run-thread 2\n"
                                "wait -1\n"
                                "run 1\n"
                                "wait -1\n");
}

TEST(ObjectsThatNeverRan, LeaveTheToolkitsThreadBehind)
{
    const std::string output = Probe("never-run");
    EXPECT_NE(output.find("ended 1\n"), std::string::npos) << output;
    EXPECT_NE(output.find("3 threads were not terminated"), std::string::npos) << output;
}

TEST(ObjectsThatNeverRan, AreDestroyedWithTheirThreadCreatedToo)
{
    EXPECT_EQ(Probe("created"), "create 0\nwait -1\nstarted 0\ndestroyed 1\n");
}

TEST(Memory, OfObjectsThatNeverRanIsAllThatStays)
{
    if (std::getenv("FITTINGS_TEST_VALGRIND"))
        GTEST_SKIP() << "valgrind's allocator does not tell how much memory is in use";
    EXPECT_EQ(Probe("memory"), "run 0\nposted 0\nrefused 0\nnever run 1\n");
}

TEST(DetachedObject, IsDestroyedWithoutWaiting)
{
    EXPECT_EQ(Probe("destroy-detached"), "started 1\ndestroyed 1\n");
}

TEST(TwoThreadsThatWait, AreWokenByOneSignalOnly)
{
    EXPECT_EQ(Probe("two-waiters"), "both 1\none 1\nended 1\nother 1\nlater 42\n");
}

TEST(Process, MayEndAsSoonAsItHasWaited)
{
    for (int i = 0; i < 20; ++i)
        ASSERT_EQ(Probe("end-at-once"), "wait 42\n");
}

TEST(ExceptionThatLeavesEntry, GoesToTheToolkitAndEndsTheWait)
{
    const std::string output = Probe("throw");
    EXPECT_NE(output.find("unhandled of Entry\n"), std::string::npos) << output;
    EXPECT_NE(output.find("wait -1\n"), std::string::npos) << output;
    EXPECT_NE(output.find("ended 1\n"), std::string::npos) << output;
    EXPECT_NE(output.find("unhandled of a worker\nend events 1\nwith -1\n"), std::string::npos) << output;
}

}  // namespace
