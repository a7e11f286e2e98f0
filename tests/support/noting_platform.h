#ifndef FITTINGS_TESTS_SUPPORT_NOTING_PLATFORM_H_
#define FITTINGS_TESTS_SUPPORT_NOTING_PLATFORM_H_

#include <string>
#include <vector>

/// Calls to the platform, each as "operation [argument] [argument]".
using Calls = std::vector<std::wstring>;

/// The platform of a program that links this in place of the platform library's settings, paths and UTF-8: it notes the
/// calls it gets, and can fail any one of them.
struct NotingPlatform
{
    Calls calls;
    std::wstring thrower;  ///< The operation that throws.
    bool folderExists = true;
    bool loads = true;
    bool saves = true;
    std::wstring stored = L"stored";  ///< Every text that is read; ASCII.
    int files = 0;                    ///< File objects alive.
    int batches = 0;                  ///< Batches alive.
    int savesWithoutBatch = 0;        ///< Writes to the default store that saved at once.
};

extern NotingPlatform g_platform;

/// Notes a call; throws when the operation is the one that does.
void Note(const std::wstring& operation, const std::vector<std::wstring>& arguments = {});

#endif
