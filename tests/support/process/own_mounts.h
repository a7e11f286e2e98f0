#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_OWN_MOUNTS_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_OWN_MOUNTS_H_

#include <string>

/// Gives this process a mount namespace that only it and its children see, and that ends with them. The process must
/// have one thread. Returns false where the system does not allow it; users other than root need user namespaces.
bool EnterOwnMounts();

/// Mounts an empty file system of 64 KiB, in memory. Only after EnterOwnMounts().
bool MountSmallDisk(const std::string& folder);

/// Mounts an empty file system in memory. Only after EnterOwnMounts().
bool MountDisk(const std::string& folder);

/// Makes the disk of MountSmallDisk() read-only, or writable again.
bool SetReadOnly(const std::string& folder, bool isReadOnly);

#endif
