#include <tests/support/process/forked_work.h>

#include <cstdio>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

pid_t StartChild(const std::function<void()>& work)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child != 0)
        return child;
    const int before = testing::UnitTest::GetInstance()->failed_test_count();
    work();
    std::fflush(nullptr);
    const bool failed = testing::Test::HasFailure() || testing::UnitTest::GetInstance()->failed_test_count() != before;
    _exit(failed ? 1 : 0);
}

bool WaitForSuccess(pid_t child)
{
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void InChild(const std::function<void()>& work)
{
    EXPECT_TRUE(WaitForSuccess(StartChild(work))) << "in the child process";
}

void InChildren(int count, const std::function<void(int)>& work)
{
    std::vector<pid_t> children;
    for (int number = 0; number < count; ++number)
        children.push_back(StartChild([&] { work(number); }));
    for (const pid_t child : children)
        EXPECT_TRUE(WaitForSuccess(child)) << "in a child process";
}
