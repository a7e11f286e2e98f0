#ifndef FITTINGS_TESTS_NUMEDIT_KNOWN_FORMATS_H_
#define FITTINGS_TESTS_NUMEDIT_KNOWN_FORMATS_H_

#include <fittings/numedit/number_format.h>

/// Returns the locale preset with every field changed.
CNumberFormat UnusualFormat();

/// Returns the fixed preset with every flag set to @a flag, with tight limits and another template.
CNumberFormat FormatWithFlags(bool flag);

/// Expects every field to equal that of UnusualFormat().
void ExpectUnusual(const CNumberFormat& format);

/// Expects every field to equal that of the fixed preset.
void ExpectFixed(const CNumberFormat& format);

#endif
