#ifndef FITTINGS_PLATFORM_LOCAL_REG_STORE_H_
#define FITTINGS_PLATFORM_LOCAL_REG_STORE_H_

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fittings/base/export.h>
#include <fittings/platform/text_argument.h>

namespace fittings {

/// A key of a section and its value.
struct SettingsEntry
{
    std::wstring key;    ///< Any text.
    std::wstring value;  ///< Any text.
};

/// One of several changes of settings that are saved together.
struct SettingsChange
{
    std::wstring section;               ///< Any text without a null character, as the two that follow.
    std::wstring key;                   ///< Of a value.
    std::optional<std::wstring> value;  ///< None removes the key.

    /// The change is of the section itself, and the key counts for nothing: with a value the section is made, though it
    /// may have no keys; with none it is removed, unless it has a key when all keys are changed.
    bool isOfSection = false;
};

}  // namespace fittings

/// One INI file in memory. Opaque: made, used and released through CLocalRegStore only.
class CIniFile;

/// The settings store: INI files one at a time, and the default store that all of an application shares.
///
/// Every text may hold any character, line breaks and lone surrogates included, and comes back exactly; null counts as
/// empty. Sections, keys and values are told apart by their exact characters, upper and lower case included.
///
/// Each text may be given as any kind, wxString, std::string, std::wstring, or a wide or narrow literal, and each as
/// another: fittings::TextArgument.
///
/// The default store is the file settings.ini in std_file_paths::GetUserDataDir(), shared by all processes of one
/// application. A write re-reads it, changes its own keys alone, and is on the disk when it returns true; a write by
/// another process at the same time is kept too. A write waits two seconds at most for another process that is stuck, a
/// read for none. On file systems that cannot exchange two files in one step, such as NFS, two writes within the same
/// few microseconds can still lose one of them, but only if the lock file settings.ini.lock cannot be used either.
///
/// A file of more than 64 MiB or of a million lines is not a settings file: it is not read, and nothing is stored that
/// would make one.
///
/// The default store may be used from any thread, and until the process ends; a CIniFile from one thread at a time.
///
/// @code
/// CLocalRegStore::WriteString(L"Search", L"LastText", field->GetValue());
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

    /// Removes a key. Only in memory, as WriteString() is. True when there was such a key.
    static bool DeleteKey(CIniFile& ini, const wchar_t* section, const wchar_t* key);

    /// Returns the names of all sections, each once, in the order of the file; those written since come last. The keys
    /// before the first section belong to none.
    static std::vector<std::wstring> GetSectionNames(const CIniFile& ini);

    /// Returns the names of the keys of @a section, each once, in the order of the file; those written since come last.
    /// Empty when there is no such section.
    static std::vector<std::wstring> GetKeyNames(const CIniFile& ini, const wchar_t* section);

    using Entry = fittings::SettingsEntry;  ///< A key and its value.

    /// Returns the keys of @a section with their values, in the order of GetKeyNames(), in a time in proportion to
    /// their number. Those of the section of the empty name come after the keys before the first section, as
    /// wxFileConfig writes them.
    static std::vector<Entry> GetEntries(const CIniFile& ini, const wchar_t* section);

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
    /// @name One INI file that others change as well
    /// @{

    using Change = fittings::SettingsChange;  ///< One of several changes that are saved together.

    /// Reads the file at @a path into @a ini in place of what it held, unless the file is as it was when this read it
    /// last.
    ///
    /// Returns false when @a ini was left as it is, changes that were made in it meanwhile included. A file that cannot
    /// be read counts as empty. @a ini is for reading: do not hand it to Save().
    static bool Refresh(CIniFile& ini, const wchar_t* path);

    /// Makes the changes in @a ini: those of keys, and then those of sections.
    static void ApplyChanges(CIniFile& ini, const std::vector<Change>& changes);

    /// Makes the changes in what the file at @a path holds now, by one save, as WriteString() does it in the default
    /// store: what other processes and threads store by this operation at the same time is kept. The lock file has
    /// ".lock" at its end.
    ///
    /// Returns false when they could not be saved; none of them is then made.
    static bool SaveChanges(const wchar_t* path, const std::vector<Change>& changes);

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

    /// Returns a stored integer, or @a defaultValue when there is none or the stored text is not a decimal number that
    /// fits.
    static int GetProfileInt(const wchar_t* section, const wchar_t* key, int defaultValue);

    /// Stores an integer as decimal text. Returns as WriteString() does.
    static bool WriteProfileInt(const wchar_t* section, const wchar_t* key, int value);

    /// Removes a key. Returns false when the store could not be saved; true also when there was no such key.
    static bool DeleteProfile(const wchar_t* section, const wchar_t* key);

    /// Makes several changes by one save. Returns as WriteString() does, and does it as one.
    static bool SaveChanges(const std::vector<Change>& changes);

    /// Reads the default store into @a ini as the operation of the same name reads a file, with what this thread's
    /// Batch has collected.
    static bool Refresh(CIniFile& ini);

    /// Returns the names of all sections, each once, in the order of the file.
    static std::vector<std::wstring> GetSectionNames();

    /// Returns the names of the keys of @a section, each once, in the order of the file. Empty when there is no such
    /// section.
    static std::vector<std::wstring> GetKeyNames(const wchar_t* section);

    class Batch;

    /// @}
    /// @name The default store, narrow text
    ///
    /// The same values as through the wide operations: narrow text is taken as UTF-8, and bytes that are not UTF-8
    /// come back as they were written. A wxString of what these return is wxString::FromUTF8().
    /// @{

    /// Returns the stored value, or @a defaultValue when there is none.
    static std::string GetString(const char* section, const char* key, const char* defaultValue);

    /// Stores a value for good. Returns as the wide operation does.
    static bool WriteString(const char* section, const char* key, const char* value);

    /// @}
    /// @name With texts of any kind
    /// @{

    /// As the operation of wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool Load(CIniFile& ini, const Path& path)
    {
        return Load(ini, fittings::TextArgument(path));
    }

    /// As the operation of wide text: section, key, default value.
    template <typename... Texts, fittings::IfTexts<3, Texts...> = 0>
    static std::wstring GetString(const CIniFile& ini, const Texts&... texts)
    {
        return GetString(ini, fittings::TextArgument(texts)...);
    }

    /// As the operation of wide text: section, key, value.
    template <typename... Texts, fittings::IfTexts<3, Texts...> = 0>
    static void WriteString(CIniFile& ini, const Texts&... texts)
    {
        WriteString(ini, fittings::TextArgument(texts)...);
    }

    /// As the operation of wide text: section, key.
    template <typename... Texts, fittings::IfTexts<2, Texts...> = 0>
    static bool DeleteKey(CIniFile& ini, const Texts&... texts)
    {
        return DeleteKey(ini, fittings::TextArgument(texts)...);
    }

    /// As the operation of wide text.
    template <typename Section, fittings::IfTexts<1, Section> = 0>
    static std::vector<std::wstring> GetKeyNames(const CIniFile& ini, const Section& section)
    {
        return GetKeyNames(ini, fittings::TextArgument(section));
    }

    /// As the operation of wide text.
    template <typename Section, fittings::IfTexts<1, Section> = 0>
    static std::vector<Entry> GetEntries(const CIniFile& ini, const Section& section)
    {
        return GetEntries(ini, fittings::TextArgument(section));
    }

    /// As the operation of wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool Save(const CIniFile& ini, const Path& path)
    {
        return Save(ini, fittings::TextArgument(path));
    }

    /// As the operation of wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool Refresh(CIniFile& ini, const Path& path)
    {
        return Refresh(ini, fittings::TextArgument(path));
    }

    /// As the operation of wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool SaveChanges(const Path& path, const std::vector<Change>& changes)
    {
        return SaveChanges(fittings::TextArgument(path), changes);
    }

    /// As the operation of wide text. Given a narrow text, and none that is wide alone, as the operation of narrow
    /// text, which returns a std::string.
    template <typename Section, typename Key, typename Default, fittings::IfMixedTexts<Section, Key, Default> = 0>
    static auto GetString(const Section& section, const Key& key, const Default& defaultValue)
    {
        if constexpr (fittings::kAreNarrowTexts<Section, Key, Default>)
            return GetString(fittings::NarrowText(section).c_str(), fittings::NarrowText(key).c_str(),
                             fittings::NarrowText(defaultValue).c_str());
        else
            return GetString(fittings::TextArgument(section), fittings::TextArgument(key),
                             fittings::TextArgument(defaultValue));
    }

    /// As the operation of wide text, or of narrow text.
    template <typename Section, typename Key, typename Value, fittings::IfMixedTexts<Section, Key, Value> = 0>
    static bool WriteString(const Section& section, const Key& key, const Value& value)
    {
        if constexpr (fittings::kAreNarrowTexts<Section, Key, Value>)
            return WriteString(fittings::NarrowText(section).c_str(), fittings::NarrowText(key).c_str(),
                               fittings::NarrowText(value).c_str());
        else
            return WriteString(fittings::TextArgument(section), fittings::TextArgument(key),
                               fittings::TextArgument(value));
    }

    /// As the operation of wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static bool GetProfileBool(const Section& section, const Key& key, bool defaultValue)
    {
        return GetProfileBool(fittings::TextArgument(section), fittings::TextArgument(key), defaultValue);
    }

    /// As the operation of wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static bool WriteProfileBool(const Section& section, const Key& key, bool value)
    {
        return WriteProfileBool(fittings::TextArgument(section), fittings::TextArgument(key), value);
    }

    /// As the operation of wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static int GetProfileInt(const Section& section, const Key& key, int defaultValue)
    {
        return GetProfileInt(fittings::TextArgument(section), fittings::TextArgument(key), defaultValue);
    }

    /// As the operation of wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static bool WriteProfileInt(const Section& section, const Key& key, int value)
    {
        return WriteProfileInt(fittings::TextArgument(section), fittings::TextArgument(key), value);
    }

    /// As the operation of wide text: section, key.
    template <typename... Texts, fittings::IfTexts<2, Texts...> = 0>
    static bool DeleteProfile(const Texts&... texts)
    {
        return DeleteProfile(fittings::TextArgument(texts)...);
    }

    /// As the operation of wide text.
    template <typename Section, fittings::IfTexts<1, Section> = 0>
    static std::vector<std::wstring> GetKeyNames(const Section& section)
    {
        return GetKeyNames(fittings::TextArgument(section));
    }

    /// @}
};

/// Collects what its thread stores in the default store, and saves it as one: for all that a closing window remembers.
///
/// While an object lives, each write of its thread to the default store answers true and is seen by that thread's
/// reads; other threads and processes see it from the save on. Objects may be nested; the outermost saves when it ends.
/// To be destroyed by the thread that made it, in the reverse order.
///
/// @code
/// CLocalRegStore::Batch batch;
/// wx_window_state::SaveState(frame, L"Main");
/// tree->SaveState("Folders", root);
/// @endcode
class FITTINGS_API CLocalRegStore::Batch
{
public:
    Batch();

    /// Saves what has not been saved yet when this is the outermost object. Call Save() to learn whether that succeeds.
    ~Batch();

    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

    /// Saves what this thread has collected so far, by the objects around this one too: all of it or nothing. Returns
    /// false when it could not be saved; it is then still collected, and the outermost object tries again.
    bool Save();

private:
    struct Collected;

    std::unique_ptr<Collected> m_collected;  ///< Of the outermost object.
};

#endif
