#ifndef FITTINGS_PLATFORM_FILE_UTIL_EX_H_
#define FITTINGS_PLATFORM_FILE_UTIL_EX_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

/// Paths, folders and UTF-8. Any thread; a null text counts as empty.
///
/// The separator is '/'; a backslash is a character like any other. File names are UTF-8 on disk, whatever the locale:
/// a path goes to the system through ConvertToUTF8(), and a file whose name is not UTF-8 cannot be reached.
namespace file_util_ex {

/// Returns @a dir and @a name joined with one separator, whatever separators they end and start with.
/// When one of them is empty, returns the other as it is.
FITTINGS_API std::wstring MakePath(const CStdStr<wchar_t>& dir, const CStdStr<wchar_t>& name);

/// True when @a path is a folder, or a link to one.
FITTINGS_API bool DoesDirExist(const CStdStr<wchar_t>& path);

/// Creates the folder, and the folders above it that are missing, for the user alone (mode 0700). Returns
/// whether the folder exists afterwards.
FITTINGS_API bool Mkdir(const CStdStr<wchar_t>& path);

/// Returns @a path with one separator at its end, added when missing; several become one. An empty path stays empty.
FITTINGS_API std::wstring GetPathWithSep(const wchar_t* path);

/// Returns @a path without its trailing separator, or separators. The root folder keeps its own.
FITTINGS_API std::wstring RemoveBackSlash(const wchar_t* path);

/// Returns @a text in UTF-8. What is no Unicode character becomes U+FFFD.
FITTINGS_API std::string ConvertToUTF8(const std::wstring& text);

/// Returns UTF-8 @a text decoded. Bytes that are not UTF-8 become U+FFFD, one for each sequence that is cut short and
/// for each byte that can start none.
FITTINGS_API std::wstring ConvertFromUTF8W(const std::string& text);

}  // namespace file_util_ex

#endif
