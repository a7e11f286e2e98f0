#include <tests/faults/own_home.h>

#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/support/process/own_mounts.h>

namespace {

std::string Home()
{
    const char* const home = std::getenv("HOME");
    return home ? home : "/nonexistent";
}

// If the system has no font cache, each program writes its own cache, which would fill the small disk. Therefore the
// caches are on another disk.
bool MountCaches()
{
    const std::string caches = Home() + "/.cache";
    return mkdir(caches.c_str(), 0700) == 0 && MountDisk(caches);
}

// A process can enter a new user namespace only while it has one thread, so this runs before main().
const bool g_isThere = EnterOwnMounts() && MountSmallDisk(Home()) && MountCaches();

}  // namespace

bool own_home::IsThere()
{
    return g_isThere;
}

void own_home::MakeReadOnly(bool isReadOnly)
{
    ASSERT_TRUE(SetReadOnly(Home(), isReadOnly)) << errno;
}

void own_home::Fill(bool isFull)
{
    const std::string path = Home() + "/filler";
    if (!isFull) {
        ASSERT_EQ(unlink(path.c_str()), 0);
        return;
    }
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    const char bytes[512] = {};
    while (write(file, bytes, sizeof(bytes)) > 0) {
    }
    EXPECT_EQ(errno, ENOSPC);
    close(file);
}
