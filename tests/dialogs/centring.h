#ifndef FITTINGS_TESTS_DIALOGS_CENTRING_H_
#define FITTINGS_TESTS_DIALOGS_CENTRING_H_

#include <vector>

/// Returns the list of the directions in which file and folder dialogs have been centred. Tests read and clear the
/// list.
std::vector<int>& CentredDialogs();

#endif
