#ifndef FITTINGS_TESTS_FAULTS_OWN_HOME_H_
#define FITTINGS_TESTS_FAULTS_OWN_HOME_H_

#include <string>

/// The home folder of this process and its children: since before main() a disk of 64 KiB of its own, where the system
/// allows that. Without one nothing here can be done.
namespace own_home {

bool IsThere();

/// Every change is refused, as on a mount that is read only, or one that went so after an error.
void MakeReadOnly(bool isReadOnly);

/// There is no room for another byte.
void Fill(bool isFull);

}  // namespace own_home

#endif
