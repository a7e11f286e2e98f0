#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_OWN_MOUNTS_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_OWN_MOUNTS_H_

#include <string>

/// Moves this process to a new mount namespace, which ends with this process and its children. Other processes do not
/// see the mounts in this namespace. This process must have only one thread. Returns false if the system does not allow
/// the namespace; users other than root need user namespaces.
bool EnterOwnMounts();

/// Mounts an empty file system of 64 KiB, in memory. Call EnterOwnMounts() first.
bool MountSmallDisk(const std::string& folder);

/// Mounts an empty file system in memory. Call EnterOwnMounts() first.
bool MountDisk(const std::string& folder);

/// Makes the disk of MountSmallDisk() read-only, or writable again.
bool SetReadOnly(const std::string& folder, bool isReadOnly);

#endif
