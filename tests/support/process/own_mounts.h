#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_OWN_MOUNTS_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_OWN_MOUNTS_H_

#include <string>

/// Gives this process, which has one thread only, mounts that it and its children alone see and that go with them.
/// False where the system does not allow it; other users than root need user namespaces.
bool EnterOwnMounts();

/// Mounts an empty file system of 64 KiB, in memory. Only after EnterOwnMounts().
bool MountSmallDisk(const std::string& folder);

/// Mounts an empty file system in memory. Only after EnterOwnMounts().
bool MountDisk(const std::string& folder);

/// Lets a small disk be read only, or be written again.
bool SetReadOnly(const std::string& folder, bool isReadOnly);

#endif
