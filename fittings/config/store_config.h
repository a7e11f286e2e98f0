#ifndef FITTINGS_CONFIG_STORE_CONFIG_H_
#define FITTINGS_CONFIG_STORE_CONFIG_H_

#include <memory>
#include <string>

#include <wx/confbase.h>

#include <fittings/base/export.h>

namespace fittings {
class StoreModel;
}

/// The settings store as a wxConfigBase, for wxFileHistory, wxPersistenceManager and all other code that uses a
/// wxConfigBase.
///
/// The group "A/B" is the section `A/B` of the store, and its entries are the keys of that section. So the entry
/// `/LastFiles/Report` has the path of the file that CQVFileDialogI stores for its registry entry "Report". Entries of
/// the root are in the section with the empty name, `[%]` in the file.
///
/// Each read returns the current value in the store, even if another object or process has stored it. If this object
/// has changed the value and not saved the change yet, the read returns the changed value.
///
/// Changes are collected until Flush() or the destructor saves them. One save writes all changed entries. It keeps what
/// other processes have stored. While the thread has a CLocalRegStore::Batch, the batch saves the changes of the
/// default store.
///
/// Paths, "..", groups without entries, the texts of numbers, and binary data are as in wxFileConfig. What differs:
/// - Names are compared exactly, including upper and lower case.
/// - Groups and entries are enumerated in the order of the file; new and renamed ones come last.
/// - A '!' at the beginning of a name has no meaning; there are no immutable entries.
/// - Reading an entry makes no group.
/// - A failure to save is not logged: Flush() returns false.
/// - DeleteAll() is saved like any other change. In the default store, it removes the settings of all components.
///
/// A name or value with a null character cannot be stored, and neither can a path of more than 100 groups: the write
/// returns false. A section whose name is not a path of groups, such as `A//B`, is kept but cannot be reached. Only one
/// thread at a time may use an object.
///
/// @code
/// wxConfigBase::Set(new wxStoreConfig);  // the toolkit deletes it when the program ends
/// @endcode
class FITTINGS_API wxStoreConfig : public wxConfigBase
{
public:
    /// Opens the default store of CLocalRegStore.
    wxStoreConfig();

    /// Opens a named file as ui_config_mgr does: in the folder "ui_config" of the current user data directory.
    explicit wxStoreConfig(const wxString& file);

    /// Saves the changes that are not saved yet. Does not report a failure: call Flush() first if you need the result.
    ~wxStoreConfig() override;

    wxStoreConfig(const wxStoreConfig&) = delete;
    wxStoreConfig& operator=(const wxStoreConfig&) = delete;

    /// Copies all groups and entries of @a old that can be stored. Does so only once: a later call copies nothing, even
    /// in a later run of the program or with another @a old. An entry that already exists keeps its value. Texts are
    /// copied literally: environment variables are not expanded. @a old keeps its path and options.
    ///
    /// Then saves all collected changes at once, as Flush() does. Returns false when the save failed; the next call
    /// then tries to save again.
    bool ImportFrom(wxConfigBase& old);

    /// @name The current group
    /// @{

    /// Makes the group at @a path the current group. The path may be relative and contain "..". A group that does not
    /// exist is made; it is stored when it gets its first entry. A path that cannot be stored is ignored.
    void SetPath(const wxString& path) override;

    /// Returns the path of the current group: absolute, without a separator at its end, empty for the root.
    const wxString& GetPath() const override;

    /// Finds the first group in the current group. Returns false when there is none.
    bool GetFirstGroup(wxString& name, long& place) const override;
    bool GetNextGroup(wxString& name, long& place) const override;  ///< Finds the next group; false at the end.
    /// Finds the first entry in the current group. Returns false when there is none.
    bool GetFirstEntry(wxString& name, long& place) const override;
    bool GetNextEntry(wxString& name, long& place) const override;     ///< Finds the next entry; false at the end.
    size_t GetNumberOfEntries(bool recursive = false) const override;  ///< Counts all levels if @a recursive.
    size_t GetNumberOfGroups(bool recursive = false) const override;   ///< Counts all levels if @a recursive.

    /// Renames an entry of the current group. Returns false if there is no entry @a oldName, or if @a newName is
    /// already used or not valid.
    bool RenameEntry(const wxString& oldName, const wxString& newName) override;

    /// Renames a group in the current group. Returns false if there is no group @a oldName, or if @a newName is already
    /// used or not valid.
    bool RenameGroup(const wxString& oldName, const wxString& newName) override;
    /// @}

    bool HasGroup(const wxString& path) const override;  ///< True when there is such a group; false for an empty path.
    bool HasEntry(const wxString& path) const override;  ///< True when there is such an entry.

    /// Removes an entry. If @a deleteGroupIfEmpty is true and the group of the entry is then empty, removes the group
    /// too. Returns false when there is no such entry.
    bool DeleteEntry(const wxString& path, bool deleteGroupIfEmpty = true) override;

    /// Removes a group with its contents. If this removes the current group, the parent of the group at @a path becomes
    /// current. Returns false when there is no such group, or when it is the root.
    bool DeleteGroup(const wxString& path) override;

    /// Removes all groups and entries, and the sections that are not groups. Returns true.
    bool DeleteAll() override;

    /// Saves the changes in all groups, even if @a currentOnly is true. Returns false when the save failed; the changes
    /// are then kept for the next call.
    ///
    /// While the thread has a CLocalRegStore::Batch, the changes of the default store pass to the batch, and the result
    /// is true. This object then no longer keeps the changes. The batch saves them at its end or before. If the save at
    /// its end fails, the changes are lost. Call CLocalRegStore::Batch::Save() to learn whether they are stored.
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
