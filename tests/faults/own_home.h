#ifndef FITTINGS_TESTS_FAULTS_OWN_HOME_H_
#define FITTINGS_TESTS_FAULTS_OWN_HOME_H_

#include <string>

/// Before main(), gives this process and its children a home folder on a disk of 64 KiB. If the system does not allow
/// that, IsThere() returns false, and the other functions must not be called.
namespace own_home {

bool IsThere();

/// Mounts the disk read-only, or makes it writable again.
void MakeReadOnly(bool isReadOnly);

/// Fills the disk completely, or removes the file that fills it.
void Fill(bool isFull);

}  // namespace own_home

#endif
