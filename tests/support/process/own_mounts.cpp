#include <tests/support/process/own_mounts.h>

#include <fstream>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

// Enters a new mount namespace. A user who is not root also enters a new user namespace, and becomes root there if the
// system allows it.
bool EnterMountNamespace()
{
    if (unshare(CLONE_NEWNS) == 0)
        return true;
    const std::string user = "0 " + std::to_string(geteuid()) + " 1";
    const std::string group = "0 " + std::to_string(getegid()) + " 1";
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    std::ofstream("/proc/self/uid_map") << user;
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/gid_map") << group;
    return geteuid() == 0;
}

}  // namespace

bool EnterOwnMounts()
{
    return EnterMountNamespace() && mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool MountSmallDisk(const std::string& folder)
{
    return mount("fittings-test", folder.c_str(), "tmpfs", 0, "size=64k,mode=700") == 0;
}

bool MountDisk(const std::string& folder)
{
    return mount("fittings-test", folder.c_str(), "tmpfs", 0, "mode=700") == 0;
}

bool SetReadOnly(const std::string& folder, bool isReadOnly)
{
    unsigned long flags = MS_REMOUNT;
    if (isReadOnly)
        flags |= MS_RDONLY;
    return mount("fittings-test", folder.c_str(), "tmpfs", flags, "size=64k,mode=700") == 0;
}
