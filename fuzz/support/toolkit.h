#ifndef FITTINGS_FUZZ_TOOLKIT_H_
#define FITTINGS_FUZZ_TOOLKIT_H_

#include <string>

class FuzzedDataProvider;

/// The first call starts the toolkit on the display, and makes an empty user data directory, in memory if possible.
/// Later calls do nothing. Every assertion of the toolkit is a finding, except those about an invalid wildcard and
/// those that an AssertionsAllowed object allows.
void StartToolkit();

/// Allows assertions of the toolkit while the object exists, if @a allowed is true.
class AssertionsAllowed
{
public:
    explicit AssertionsAllowed(bool allowed);
    ~AssertionsAllowed();
    AssertionsAllowed(const AssertionsAllowed&) = delete;
    AssertionsAllowed& operator=(const AssertionsAllowed&) = delete;
};

/// Returns the remaining bytes as text, up to the first null character: ASCII bytes unchanged, other bytes as unusual
/// characters.
std::wstring ConsumeWideText(FuzzedDataProvider& bytes);

#endif
