#ifndef FITTINGS_TESTS_FAULTS_OWN_HOME_H_
#define FITTINGS_TESTS_FAULTS_OWN_HOME_H_

#include <string>

/// The home folder of this process and its children: from before main() on a disk of 64 KiB, where the system allows
/// one. Without one these functions do nothing.
namespace own_home {

bool IsThere();

/// Makes the disk refuse every change, as a mount that is read only, or has become so after an error.
void MakeReadOnly(bool isReadOnly);

/// Fills the disk to the last byte.
void Fill(bool isFull);

}  // namespace own_home

#endif
