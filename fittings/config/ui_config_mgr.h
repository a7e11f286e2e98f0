#ifndef FITTINGS_CONFIG_UI_CONFIG_MGR_H_
#define FITTINGS_CONFIG_UI_CONFIG_MGR_H_

#include <string>

#include <fittings/base/export.h>
#include <fittings/platform/text_argument.h>

/// Text and integers in named INI files below the folder "ui_config" of the user data directory.
///
/// Every call opens its file, reads or changes one value, saves the change and closes the file. Nothing is cached and
/// no lock is taken: if two processes write one file at the same moment, one of the changes can be lost. The first call
/// of any kind makes the folder. Null texts count as empty. GUI thread only.
///
/// Each text may be a wxString, a std::string, a std::wstring, or a wide or narrow literal. One call may mix them: see
/// fittings::TextArgument.
///
/// A file name is appended to the folder without a check. "../x.ini" is a file outside the folder. If a name contains a
/// folder, that folder must exist. Use file names that the program defines, never a name that a user can choose.
///
/// @code
/// ui_config_mgr::WriteConfigInt(L"search.ini", L"Results", L"PageSize", 50);
/// int size = ui_config_mgr::GetConfigInt(L"search.ini", L"Results", L"PageSize");
/// @endcode
namespace ui_config_mgr {

/// Stores a text, and creates file, section and key as needed. A failure to save is not reported; the file is then
/// unchanged.
FITTINGS_API void WriteConfigString(const wchar_t* file, const wchar_t* section, const wchar_t* key,
                                    const wchar_t* value);

/// Returns the stored text; empty when the file, the section or the key is missing, or the text itself is empty.
FITTINGS_API std::wstring GetConfigString(const wchar_t* file, const wchar_t* section, const wchar_t* key);

/// Removes the key from the *default store*, as CLocalRegStore::DeleteProfile() does.
///
/// The named file keeps its key: it is only loaded and saved unchanged, or created empty when it does not exist.
FITTINGS_API void DeleteConfig(const wchar_t* file, const wchar_t* section, const wchar_t* key);

/// Returns the stored text as an integer, as std::stoi reads it in base 10: blanks before the number and everything
/// after it are ignored. Returns 0 for a missing or empty text.
///
/// @throws std::invalid_argument when the text does not begin with a number.
/// @throws std::out_of_range when the number does not fit an `int`.
FITTINGS_API int GetConfigInt(const wchar_t* file, const wchar_t* section, const wchar_t* key);

/// Stores @a value as decimal text.
FITTINGS_API void WriteConfigInt(const wchar_t* file, const wchar_t* section, const wchar_t* key, int value);

/// @name With texts of any kind
/// @{

/// Does the same as the overload for wide text. The texts are file, section, key and value.
template <typename... Texts, fittings::IfTexts<4, Texts...> = 0>
void WriteConfigString(const Texts&... texts)
{
    WriteConfigString(fittings::TextArgument(texts)...);
}

/// Does the same as the overload for wide text. The texts are file, section and key.
template <typename... Texts, fittings::IfTexts<3, Texts...> = 0>
std::wstring GetConfigString(const Texts&... texts)
{
    return GetConfigString(fittings::TextArgument(texts)...);
}

/// Does the same as the overload for wide text. The texts are file, section and key.
template <typename... Texts, fittings::IfTexts<3, Texts...> = 0>
void DeleteConfig(const Texts&... texts)
{
    DeleteConfig(fittings::TextArgument(texts)...);
}

/// Does the same as the overload for wide text. The texts are file, section and key.
template <typename... Texts, fittings::IfTexts<3, Texts...> = 0>
int GetConfigInt(const Texts&... texts)
{
    return GetConfigInt(fittings::TextArgument(texts)...);
}

/// Does the same as the overload for wide text.
template <typename File, typename Section, typename Key, fittings::IfTexts<3, File, Section, Key> = 0>
void WriteConfigInt(const File& file, const Section& section, const Key& key, int value)
{
    WriteConfigInt(fittings::TextArgument(file), fittings::TextArgument(section), fittings::TextArgument(key), value);
}

/// @}

}  // namespace ui_config_mgr

#endif
