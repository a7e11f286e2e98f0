#ifndef FITTINGS_CONFIG_STORE_CONFIG_H_
#define FITTINGS_CONFIG_STORE_CONFIG_H_

#include <memory>
#include <string>

#include <wx/confbase.h>

#include <fittings/base/export.h>

namespace fittings {
class StoreModel;
}

/// The settings store as the toolkit's wxConfigBase: for wxFileHistory, wxPersistenceManager and all that asks for one.
///
/// The group "A/B" is the section `A/B` of the store and an entry its key, so that `/LastFiles/Report` reads what
/// CQVFileDialogI has stored. Entries of the root stand in the section of the empty name, `[%]` in the file.
///
/// Reads see own changes over what the store holds at that moment, whoever has stored it. Changes are collected;
/// Flush() and the destructor save the changed entries alone, by one save that loses nothing of what other processes
/// have stored meanwhile. While the thread has a CLocalRegStore::Batch, the default store is saved with that.
///
/// What is as in wxFileConfig: paths, "..", groups without entries, the texts of numbers and binary data. What is not:
/// - Names are told apart by their exact characters, upper and lower case included.
/// - Groups and entries are enumerated in the order of the file; new and renamed ones come last.
/// - A '!' at the beginning of a name is a character like any other; there are no immutable entries.
/// - To read an entry makes no group, and a failure to save is not logged but returned by Flush().
/// - DeleteAll() is collected, too. In the default store it removes the settings of all components.
///
/// A name or value with a null character, and a path of more than 100 groups, cannot be stored: the write returns
/// false. A section whose name is no path of groups, such as `A//B`, is kept and cannot be reached. One thread at a
/// time.
///
/// @code
/// wxConfigBase::Set(new wxStoreConfig);  // the toolkit deletes it when the program ends
/// @endcode
class FITTINGS_API wxStoreConfig : public wxConfigBase
{
public:
    /// The default store of CLocalRegStore.
    wxStoreConfig();

    /// A named file, as ui_config_mgr names it: in the folder "ui_config" of what is the user data directory now.
    explicit wxStoreConfig(const wxString& file);

    /// Saves what has not been saved yet. Call Flush() to learn whether that succeeds.
    ~wxStoreConfig() override;

    wxStoreConfig(const wxStoreConfig&) = delete;
    wxStoreConfig& operator=(const wxStoreConfig&) = delete;

    /// Takes over all groups and entries of @a old, once: a later call changes nothing, also in a later run of the
    /// program and with another @a old. An entry that is there already keeps its value. Texts are taken as they stand,
    /// with no environment variable expanded, and @a old keeps its path and options.
    ///
    /// Saves at once, with all that was collected. Returns false when that failed; the next call then tries again.
    bool ImportFrom(wxConfigBase& old);

    /// @name The current group
    /// @{

    /// Makes the group at @a path, which may be relative and have "..", current. A group that is not there is made, and
    /// stored with its first entry.
    void SetPath(const wxString& path) override;

    /// The path of the current group, absolute and without a separator at its end: empty for the root.
    const wxString& GetPath() const override;

    bool GetFirstGroup(wxString& name,
                       long& place) const override;  ///< The first group in it; false when there is none.
    bool GetNextGroup(wxString& name, long& place) const override;  ///< The one after it; false at the end.
    bool GetFirstEntry(wxString& name,
                       long& place) const override;  ///< The first entry in it; false when there is none.
    bool GetNextEntry(wxString& name, long& place) const override;  ///< The one after it; false at the end.
    size_t
    GetNumberOfEntries(bool recursive = false) const override;        ///< With those of all groups below, if asked for.
    size_t GetNumberOfGroups(bool recursive = false) const override;  ///< With those of all groups below, if asked for.

    /// Gives an entry of the current group another name. False when there is none of the old name, or one of the new.
    bool RenameEntry(const wxString& oldName, const wxString& newName) override;

    /// Gives a group in the current one another name. False when there is none of the old name, or one of the new.
    bool RenameGroup(const wxString& oldName, const wxString& newName) override;
    /// @}

    bool HasGroup(const wxString& path) const override;  ///< True when there is such a group; false for an empty path.
    bool HasEntry(const wxString& path) const override;  ///< True when there is such an entry.

    /// Removes an entry, and its group when that is empty then. False when there is no such entry.
    bool DeleteEntry(const wxString& path, bool deleteGroupIfEmpty = true) override;

    /// Removes a group with all in it; the current group is then the nearest one that is left. False when there is no
    /// such group.
    bool DeleteGroup(const wxString& path) override;

    /// Removes all groups and entries, and the sections that are no groups. True.
    bool DeleteAll() override;

    /// Saves what was changed since the last time, in all groups. Returns false when it could not be saved: it is then
    /// still there, and saved by the next call.
    bool Flush(bool currentOnly = false) override;

protected:
    bool DoReadString(const wxString& path, wxString* value) const override;        ///< As in wxFileConfig.
    bool DoReadLong(const wxString& path, long* value) const override;              ///< As in wxFileConfig.
    bool DoReadBinary(const wxString& path, wxMemoryBuffer* value) const override;  ///< As in wxFileConfig: in Base64.
    bool DoWriteString(const wxString& path, const wxString& value) override;       ///< False when it cannot be stored.
    bool DoWriteLong(const wxString& path, long value) override;                    ///< As in wxFileConfig.
    bool DoWriteBinary(const wxString& path, const wxMemoryBuffer& value) override;  ///< As in wxFileConfig: in Base64.

private:
    const std::unique_ptr<fittings::StoreModel> m_model;
    wxString m_path;  ///< As GetPath() returns it.
};

#endif
