#ifndef FITTINGS_FUZZ_TOOLKIT_H_
#define FITTINGS_FUZZ_TOOLKIT_H_

#include <string>

class FuzzedDataProvider;

/// Starts the toolkit on the display, with an empty user data directory in memory. Every assertion of the toolkit's is a
/// finding, except those about a wildcard that is none.
void StartToolkit();

/// The remaining bytes as text: ASCII as it is, high bytes as unusual characters.
std::wstring ConsumeWideText(FuzzedDataProvider& bytes);

#endif
