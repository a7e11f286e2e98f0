#ifndef FITTINGS_TESTS_SUPPORT_FILE_STATUS_H_
#define FITTINGS_TESTS_SUPPORT_FILE_STATUS_H_

#include <ctime>
#include <string>
#include <utility>

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <tests/support/becomes.h>

/// Returns what lstat() says of the file. Fails the test if there is no such file.
inline struct stat StatusOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
    return status;
}

inline unsigned ModeOf(const std::string& path)
{
    return StatusOf(path).st_mode & 07777;
}

/// Waits until a change of the file would give the file a later change time (ctime).
inline void WaitPastStamp(const std::string& path)
{
    struct stat info = {};
    ASSERT_EQ(stat(path.c_str(), &info), 0);
    EXPECT_TRUE(Becomes([&] {
        timespec now = {};
        clock_gettime(CLOCK_REALTIME_COARSE, &now);  // the kernel uses this clock for the times of files
        return std::pair(now.tv_sec, now.tv_nsec) > std::pair(info.st_ctim.tv_sec, info.st_ctim.tv_nsec);
    }));
}

#endif
