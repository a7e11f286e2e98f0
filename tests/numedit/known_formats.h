#ifndef FITTINGS_TESTS_NUMEDIT_KNOWN_FORMATS_H_
#define FITTINGS_TESTS_NUMEDIT_KNOWN_FORMATS_H_

#include <fittings/numedit/number_format.h>

/// The locale's preset with every field changed.
CNumberFormat UnusualFormat();

/// The fixed preset with every flag one way, tight limits and a template.
CNumberFormat FormatWithFlags(bool flag);

/// Expects every field to be as in UnusualFormat().
void ExpectUnusual(const CNumberFormat& format);

/// Expects every field to be as the fixed preset has it.
void ExpectFixed(const CNumberFormat& format);

#endif
