#ifndef FITTINGS_PLATFORM_LOCAL_REG_STORE_H_
#define FITTINGS_PLATFORM_LOCAL_REG_STORE_H_

#include <string>

#include <fittings/base/export.h>

/// One INI file in memory. Opaque: made, used and released through CLocalRegStore only.
class CIniFile;

/// The settings store: INI files one at a time, and the default store that all of an application shares.
///
/// Every text may hold any character, line breaks and lone surrogates included, and comes back exactly; null counts as
/// empty. Sections, keys and values are told apart by their exact characters, upper and lower case included.
///
/// The default store is the file settings.ini in std_file_paths::GetUserDataDir(). Each write re-reads it under a lock
/// and saves it before returning, so that several processes of one application keep each other's updates. A write waits
/// up to two seconds for another process to finish its own, a read for none.
///
/// The default store may be used from any thread, and until the process ends; a CIniFile from one thread at a time.
///
/// @code
/// CLocalRegStore::WriteString(L"Search", L"LastText", text.wc_str());
/// wxString text = CLocalRegStore::GetString(L"Search", L"LastText", L"");
/// @endcode
class FITTINGS_API CLocalRegStore
{
public:
    /// @name One INI file
    /// @{

    /// Returns a new, empty file object, to be released with DestroyIniFile(). The argument is reserved: pass false.
    static CIniFile* CreateInitFile(bool reserved);

    /// Reads the file at @a path into @a ini, in place of what it held.
    ///
    /// Returns false when the file could not be read; @a ini is then empty and usable. When the reason is another than
    /// that there is no such file, a later Save() to the same path fails rather than replace what could not be read.
    /// A file that was read but holds no settings and no text, such as one of zeros only or one in UTF-16, also gives
    /// false; saving changes then first gives it another name, with ".unreadable" at its end.
    static bool Load(CIniFile& ini, const wchar_t* path);

    /// Returns the value of @a key in @a section, or @a defaultValue when there is none.
    static std::wstring GetString(const CIniFile& ini, const wchar_t* section, const wchar_t* key,
                                  const wchar_t* defaultValue);

    /// Sets a value, creating section and key as needed. Only in memory: Save() makes it last.
    static void WriteString(CIniFile& ini, const wchar_t* section, const wchar_t* key, const wchar_t* value);

    /// Writes the whole object to @a path, creating or replacing the file in one step.
    ///
    /// What was read from a file and not changed since is written as it was read: comments, blank lines, lines that
    /// mean nothing, their order and their line ends.
    ///
    /// A symbolic link is followed and kept, as is the mode of the file; a new file has mode 0600. Other hard links to
    /// the file keep what it held. A file that already holds the same bytes is left untouched. Returns false on any
    /// error; the old file then stands whole.
    static bool Save(const CIniFile& ini, const wchar_t* path);

    /// Releases @a ini, which may be null.
    static void DestroyIniFile(CIniFile* ini);

    /// @}
    /// @name The default store, wide text
    /// @{

    /// Returns the stored value, or @a defaultValue when there is none.
    static std::wstring GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue);

    /// Stores a value for good. Returns false when it could not be saved; the earlier value then stands.
    static bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value);

    /// Returns a stored boolean, or @a defaultValue when there is none or the stored text is not a boolean.
    static bool GetProfileBool(const wchar_t* section, const wchar_t* key, bool defaultValue);

    /// Stores a boolean. Returns as WriteString() does.
    static bool WriteProfileBool(const wchar_t* section, const wchar_t* key, bool value);

    /// Removes a key. Returns false when the store could not be saved; true also when there was no such key.
    static bool DeleteProfile(const wchar_t* section, const wchar_t* key);

    /// @}
    /// @name The default store, narrow text
    ///
    /// The same values as through the wide operations: narrow text is taken as UTF-8, and bytes that are not UTF-8
    /// come back as they were written.
    /// @{

    /// Returns the stored value, or @a defaultValue when there is none.
    static std::string GetString(const char* section, const char* key, const char* defaultValue);

    /// Stores a value for good. Returns as the wide operation does.
    static bool WriteString(const char* section, const char* key, const char* value);
    /// @}
};

#endif
