#ifndef FITTINGS_TESTS_DIALOGS_CENTRING_H_
#define FITTINGS_TESTS_DIALOGS_CENTRING_H_

#include <vector>

/// Returns the directions in which file and folder dialogs have been centred, in order. Tests read and clear the list.
std::vector<int>& CentredDialogs();

#endif
