#ifndef FITTINGS_PLATFORM_FILE_UTIL_EX_H_
#define FITTINGS_PLATFORM_FILE_UTIL_EX_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/base/std_str.h>

/// Paths, folders and UTF-8. Callable from any thread. A null pointer counts as an empty text.
///
/// The separator is '/'; a backslash is an ordinary character. File names on disk are UTF-8, whatever the locale:
/// ConvertToUTF8() converts each path. A file whose name is not UTF-8 cannot be accessed.
namespace file_util_ex {

/// Returns @a dir and @a name joined with exactly one separator. When one of them is empty, returns the other as it is.
FITTINGS_API std::wstring MakePath(const CStdStr<wchar_t>& dir, const CStdStr<wchar_t>& name);

/// Returns true when @a path is a folder, or a link to one.
FITTINGS_API bool DoesDirExist(const CStdStr<wchar_t>& path);

/// Creates the folder and its missing parent folders, for the user alone (mode 0700). Returns whether the folder exists
/// afterwards.
FITTINGS_API bool Mkdir(const CStdStr<wchar_t>& path);

/// Returns @a path with exactly one separator at its end. An empty path stays empty.
FITTINGS_API std::wstring GetPathWithSep(const wchar_t* path);

/// Returns @a path without its trailing separators. The root folder keeps its separator.
FITTINGS_API std::wstring RemoveBackSlash(const wchar_t* path);

/// Returns @a text in UTF-8. Each code that is not a Unicode character becomes U+FFFD.
FITTINGS_API std::string ConvertToUTF8(const std::wstring& text);

/// Decodes UTF-8. Bytes that are not UTF-8 become U+FFFD: one for each incomplete sequence and one for each byte that
/// cannot start a sequence.
FITTINGS_API std::wstring ConvertFromUTF8W(const std::string& text);

}  // namespace file_util_ex

#endif
