#ifndef FITTINGS_PLATFORM_LOCAL_REG_STORE_H_
#define FITTINGS_PLATFORM_LOCAL_REG_STORE_H_

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <fittings/base/export.h>
#include <fittings/platform/text_argument.h>

namespace fittings {

/// A key and its value.
struct SettingsEntry
{
    std::wstring key;    ///< The name of the key, which may be empty.
    std::wstring value;  ///< The value, which may be empty.
};

/// A change of a key or of a section. CLocalRegStore::SaveChanges() saves several changes together.
struct SettingsChange
{
    std::wstring section;               ///< The section. Section, key and value must not contain a null character.
    std::wstring key;                   ///< The key to set or to remove.
    std::optional<std::wstring> value;  ///< The new value, or none to remove the key as DeleteKey() does.

    /// True for a change of the section itself; the key is then ignored. With any value, the change creates an empty
    /// section if there is none with that name. Without a value, the change removes the section if no key is left in it
    /// after all changes of keys.
    bool isOfSection = false;
};

}  // namespace fittings

/// One INI file in memory. Only CLocalRegStore makes, uses and releases it.
class CIniFile;

/// The settings store: single INI files, and the default store that a whole application shares.
///
/// A text may contain any character, even line breaks and lone surrogates, but no null character. It is read back
/// exactly. A null pointer counts as an empty text. Names of sections and keys are compared exactly: upper and lower
/// case differ.
///
/// Each text may be a wxString, a std::string, a std::wstring, or a wide or narrow literal. One call may mix them: see
/// fittings::TextArgument.
///
/// The default store is the file settings.ini in std_file_paths::GetUserDataDir(). All processes of one application
/// share it. Each write first reads the file again, and then changes only the given keys. When the write returns true,
/// the file with the change is on the disk, except in a Batch. Changes that other processes write at the same time are
/// kept. A write waits at most two seconds for another process that is stuck; a read never waits.
///
/// A write locks the file settings.ini.lock in the same folder. If it cannot get the lock, and the file system cannot
/// exchange two files atomically (NFS, for example), one of two writes within the same few microseconds can be lost.
///
/// A file of more than 64 MiB or of more than a million lines counts as a file that cannot be read. A write fails if
/// the file would exceed one of these limits.
///
/// Any thread may use the default store, even while the process ends. Only one thread at a time may use a CIniFile.
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

    /// Returns a new, empty file object. Release it with DestroyIniFile(). The argument is reserved: pass false.
    static CIniFile* CreateInitFile(bool reserved);

    /// Replaces the content of @a ini with that of the file at @a path.
    ///
    /// Returns false in two cases, and @a ini is then empty and usable:
    /// - The file could not be read. If it exists, a later Save() to the same path fails, so that the file is not lost.
    /// - The file contains neither settings nor readable text, for example only null bytes or UTF-16. If a later Save()
    ///   to the same path has changes to write, Save() first renames the file: it appends ".unreadable" to the name, or
    ///   ".unreadable.2" and so on if that name is taken.
    static bool Load(CIniFile& ini, const wchar_t* path);

    /// Returns the value of @a key in @a section, or @a defaultValue when there is none.
    static std::wstring GetString(const CIniFile& ini, const wchar_t* section, const wchar_t* key,
                                  const wchar_t* defaultValue);

    /// Sets a value in memory, and creates the section and the key as needed. Save() writes the file.
    static void WriteString(CIniFile& ini, const wchar_t* section, const wchar_t* key, const wchar_t* value);

    /// Removes a key in memory. For the section with the empty name, also removes the key with the same name that
    /// stands before the first section. Returns whether a key was removed.
    static bool DeleteKey(CIniFile& ini, const wchar_t* section, const wchar_t* key);

    /// Returns the names of all sections, each once, in the order of the file; new ones come last. The keys before the
    /// first section belong to no section.
    static std::vector<std::wstring> GetSectionNames(const CIniFile& ini);

    /// Returns the names of the keys of @a section, each once, in the order of the file; new ones come last. Returns an
    /// empty list when there is no such section.
    static std::vector<std::wstring> GetKeyNames(const CIniFile& ini, const wchar_t* section);

    using Entry = fittings::SettingsEntry;  ///< A key and its value.

    /// Returns the keys of @a section with their values, in the order of GetKeyNames(). The time is proportional to the
    /// number of keys. For the section with the empty name, the result begins with the keys before the first section,
    /// because wxFileConfig writes the keys of its root group there.
    static std::vector<Entry> GetEntries(const CIniFile& ini, const wchar_t* section);

    /// Writes the content of @a ini to the file at @a path, which is created or replaced atomically.
    ///
    /// Everything that was read from a file and has not changed since then is written as it was read: comments, blank
    /// lines, meaningless lines, their order and their line ends.
    ///
    /// A symbolic link is followed and kept. The mode of the file is kept, and its owner if possible; a new file has
    /// mode 0600. Other hard links to the file keep the old content. A file that already has the same bytes is not
    /// touched. Returns false on any error; the old file is then unchanged.
    static bool Save(const CIniFile& ini, const wchar_t* path);

    /// Releases @a ini, which may be null.
    static void DestroyIniFile(CIniFile* ini);

    /// @}
    /// @name One INI file that others change as well
    /// @{

    using Change = fittings::SettingsChange;  ///< A change of a key or of a section.

    /// If the file at @a path has changed since the last call, replaces the content of @a ini with that of the file.
    /// The first call with @a ini always replaces the content. So does a call whose path differs from that of the last
    /// call.
    ///
    /// Returns true when the content was replaced: changes made in @a ini since the last call are then lost. Returns
    /// false when @a ini was not touched: it keeps such changes. A file that cannot be read counts as empty. A file
    /// that another program has emptied less than half a second ago counts as not changed. Do not pass @a ini to
    /// Save(): store changes with SaveChanges().
    static bool Refresh(CIniFile& ini, const wchar_t* path);

    /// Returns whether the file is still as the last Refresh() of @a ini read it. Returns false after Refresh() has
    /// kept the earlier content of a file that another program has emptied.
    static bool IsCurrent(const CIniFile& ini);

    /// Makes the changes in @a ini: first the changes of keys, then those of sections.
    static void ApplyChanges(CIniFile& ini, const std::vector<Change>& changes);

    /// Reads the file at @a path, makes the changes and saves the file once, as WriteString() does with the default
    /// store. Changes that other processes and threads store with this function at the same time are kept. The lock
    /// file is @a path followed by ".lock".
    ///
    /// Returns false when the changes could not be saved; none of them is then stored.
    static bool SaveChanges(const wchar_t* path, const std::vector<Change>& changes);

    /// @}
    /// @name The default store, wide text
    /// @{

    /// Returns the stored value, or @a defaultValue when there is none.
    static std::wstring GetString(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue);

    /// Stores a value. Returns false when it could not be saved; the earlier value then remains.
    static bool WriteString(const wchar_t* section, const wchar_t* key, const wchar_t* value);

    /// Returns true for the stored text "true", "yes" or "1", and false for "false", "no" or "0"; upper and lower case
    /// do not differ. Returns @a defaultValue for any other text, and when nothing is stored.
    static bool GetProfileBool(const wchar_t* section, const wchar_t* key, bool defaultValue);

    /// Stores a boolean. Returns the result of WriteString().
    static bool WriteProfileBool(const wchar_t* section, const wchar_t* key, bool value);

    /// Returns a stored integer, or @a defaultValue when there is none or the stored text is not a decimal number in
    /// the range of int.
    static int GetProfileInt(const wchar_t* section, const wchar_t* key, int defaultValue);

    /// Stores an integer as decimal text. Returns the result of WriteString().
    static bool WriteProfileInt(const wchar_t* section, const wchar_t* key, int value);

    /// Removes a key. Returns false when the store could not be saved, and true even when there was no such key.
    static bool DeleteProfile(const wchar_t* section, const wchar_t* key);

    /// Makes several changes with one save. Returns false when they could not be saved; none of them is then stored.
    static bool SaveChanges(const std::vector<Change>& changes);

    /// Reads the default store into @a ini as the overload with a path reads a file. @a ini then includes the changes
    /// that this thread's Batch has collected.
    static bool Refresh(CIniFile& ini);

    /// Returns the names of all sections, each once, in the order of the file.
    static std::vector<std::wstring> GetSectionNames();

    /// Returns the names of the keys of @a section, each once, in the order of the file. Returns an empty list when
    /// there is no such section.
    static std::vector<std::wstring> GetKeyNames(const wchar_t* section);

    class Batch;

    /// @}
    /// @name The default store, narrow text
    ///
    /// These overloads access the same values as those for wide text. Narrow text is UTF-8; bytes that are not UTF-8
    /// are read back as they were written. To convert a result to wxString, use wxString::FromUTF8().
    /// @{

    /// Returns the stored value, or @a defaultValue when there is none.
    static std::string GetString(const char* section, const char* key, const char* defaultValue);

    /// Stores a value. Returns false when it could not be saved; the earlier value then remains.
    static bool WriteString(const char* section, const char* key, const char* value);

    /// @}
    /// @name Overloads for texts of any kind
    /// @{

    /// Does the same as the overload for wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool Load(CIniFile& ini, const Path& path)
    {
        return Load(ini, fittings::TextArgument(path));
    }

    /// Does the same as the overload for wide text. The texts are section, key and default value.
    template <typename... Texts, fittings::IfTexts<3, Texts...> = 0>
    static std::wstring GetString(const CIniFile& ini, const Texts&... texts)
    {
        return GetString(ini, fittings::TextArgument(texts)...);
    }

    /// Does the same as the overload for wide text. The texts are section, key and value.
    template <typename... Texts, fittings::IfTexts<3, Texts...> = 0>
    static void WriteString(CIniFile& ini, const Texts&... texts)
    {
        WriteString(ini, fittings::TextArgument(texts)...);
    }

    /// Does the same as the overload for wide text. The texts are section and key.
    template <typename... Texts, fittings::IfTexts<2, Texts...> = 0>
    static bool DeleteKey(CIniFile& ini, const Texts&... texts)
    {
        return DeleteKey(ini, fittings::TextArgument(texts)...);
    }

    /// Does the same as the overload for wide text.
    template <typename Section, fittings::IfTexts<1, Section> = 0>
    static std::vector<std::wstring> GetKeyNames(const CIniFile& ini, const Section& section)
    {
        return GetKeyNames(ini, fittings::TextArgument(section));
    }

    /// Does the same as the overload for wide text.
    template <typename Section, fittings::IfTexts<1, Section> = 0>
    static std::vector<Entry> GetEntries(const CIniFile& ini, const Section& section)
    {
        return GetEntries(ini, fittings::TextArgument(section));
    }

    /// Does the same as the overload for wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool Save(const CIniFile& ini, const Path& path)
    {
        return Save(ini, fittings::TextArgument(path));
    }

    /// Does the same as the overload for wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool Refresh(CIniFile& ini, const Path& path)
    {
        return Refresh(ini, fittings::TextArgument(path));
    }

    /// Does the same as the overload for wide text.
    template <typename Path, fittings::IfTexts<1, Path> = 0>
    static bool SaveChanges(const Path& path, const std::vector<Change>& changes)
    {
        return SaveChanges(fittings::TextArgument(path), changes);
    }

    /// Calls the overload for narrow text, which returns a std::string, if all texts convert to narrow text and at
    /// least one of them does not convert to wide text. Otherwise calls the overload for wide text.
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

    /// Chooses between the overloads for narrow text and for wide text as GetString() does.
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

    /// Does the same as the overload for wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static bool GetProfileBool(const Section& section, const Key& key, bool defaultValue)
    {
        return GetProfileBool(fittings::TextArgument(section), fittings::TextArgument(key), defaultValue);
    }

    /// Does the same as the overload for wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static bool WriteProfileBool(const Section& section, const Key& key, bool value)
    {
        return WriteProfileBool(fittings::TextArgument(section), fittings::TextArgument(key), value);
    }

    /// Does the same as the overload for wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static int GetProfileInt(const Section& section, const Key& key, int defaultValue)
    {
        return GetProfileInt(fittings::TextArgument(section), fittings::TextArgument(key), defaultValue);
    }

    /// Does the same as the overload for wide text.
    template <typename Section, typename Key, fittings::IfTexts<2, Section, Key> = 0>
    static bool WriteProfileInt(const Section& section, const Key& key, int value)
    {
        return WriteProfileInt(fittings::TextArgument(section), fittings::TextArgument(key), value);
    }

    /// Does the same as the overload for wide text. The texts are section and key.
    template <typename... Texts, fittings::IfTexts<2, Texts...> = 0>
    static bool DeleteProfile(const Texts&... texts)
    {
        return DeleteProfile(fittings::TextArgument(texts)...);
    }

    /// Does the same as the overload for wide text.
    template <typename Section, fittings::IfTexts<1, Section> = 0>
    static std::vector<std::wstring> GetKeyNames(const Section& section)
    {
        return GetKeyNames(fittings::TextArgument(section));
    }

    /// @}
};

/// Collects the changes that a thread makes in the default store, and saves them with one write. Use it, for example,
/// for all settings of a window that closes.
///
/// While an object exists, each write of its thread to the default store returns true, and that thread's reads return
/// the new value. Other threads and processes see the new value after the save. Objects may be nested; the destructor
/// of the outermost object saves. Destroy each object in the thread that made it, in the reverse order of construction.
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

    /// Saves everything that is not saved yet, if this is the outermost object. Call Save() first to learn whether
    /// saving succeeds.
    ~Batch();

    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

    /// Saves all changes that this thread has collected so far, even those from before this object was made: all of
    /// them or none. Returns false when the changes could not be saved. They then stay collected, and the destructor of
    /// the outermost object tries again.
    bool Save();

private:
    struct Collected;

    std::unique_ptr<Collected> m_collected;  ///< Set in the outermost object only.
};

#endif
