#ifndef FITTINGS_TESTS_DIALOGS_CENTRING_H_
#define FITTINGS_TESTS_DIALOGS_CENTRING_H_

#include <vector>

/// The directions in which file and folder dialogs have been centred, in their order. Whoever reads it clears it.
std::vector<int>& CentredDialogs();

#endif
