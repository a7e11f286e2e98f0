#ifndef FITTINGS_TESTS_DIALOGS_CENTRING_H_
#define FITTINGS_TESTS_DIALOGS_CENTRING_H_

#include <vector>

/// The directions in which file and folder dialogs have been centred, in order. Tests clear it after reading.
std::vector<int>& CentredDialogs();

#endif
