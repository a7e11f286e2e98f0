#ifndef FITTINGS_TESTS_SUPPORT_NOTING_PLATFORM_H_
#define FITTINGS_TESTS_SUPPORT_NOTING_PLATFORM_H_

#include <string>
#include <vector>

/// Calls to the platform, each as "operation [argument] [argument]".
using Calls = std::vector<std::wstring>;

/// Replaces the platform library's settings, paths and UTF-8 in a program that links this library. Records the calls,
/// and can make any of them fail.
struct NotingPlatform
{
    Calls calls;
    std::wstring thrower;  ///< The operation that throws.
    bool folderExists = true;
    bool loads = true;
    bool saves = true;
    std::wstring stored = L"stored";  ///< The text that every read returns; ASCII.
    int files = 0;                    ///< The number of existing file objects.
    int batches = 0;                  ///< The number of existing batches.
    int savesWithoutBatch = 0;        ///< Writes to the default store that were saved immediately.
};

extern NotingPlatform g_platform;

/// Records a call, and throws if @a operation is the one that should throw.
void RecordCall(const std::wstring& operation, const std::vector<std::wstring>& arguments = {});

#endif
