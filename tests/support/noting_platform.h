#ifndef FITTINGS_TESTS_SUPPORT_NOTING_PLATFORM_H_
#define FITTINGS_TESTS_SUPPORT_NOTING_PLATFORM_H_

#include <string>
#include <vector>

/// Calls to the platform, each as "operation [argument] [argument]".
using Calls = std::vector<std::wstring>;

/// The state of a platform that records calls, and can throw in one operation. A program that links
/// fittings-noting-platform uses this platform instead of the settings, paths and UTF-8 conversions of the platform
/// library.
struct NotingPlatform
{
    Calls calls;
    std::wstring thrower;  ///< The operation that throws.
    bool folderExists = true;
    bool loads = true;
    bool saves = true;
    std::wstring stored = L"stored";  ///< The text that every GetString() returns; ASCII.
    int files = 0;                    ///< The number of existing file objects.
    int batches = 0;                  ///< The number of existing batches.
    int savesWithoutBatch = 0;        ///< The number of saves in the default store while no batch existed.
};

extern NotingPlatform g_platform;

/// Records a call, and throws if @a operation is the operation that should throw.
void RecordCall(const std::wstring& operation, const std::vector<std::wstring>& arguments = {});

#endif
