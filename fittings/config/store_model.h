#ifndef FITTINGS_CONFIG_STORE_MODEL_H_
#define FITTINGS_CONFIG_STORE_MODEL_H_

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fittings/config/owned_ini_file.h>
#include <fittings/config/store_tree.h>
#include <fittings/platform/local_reg_store.h>

namespace fittings {

/// The groups and entries of a settings file, with changes that are not saved yet.
class StoreModel
{
public:
    /// @a file is the path of the file; none for the default store.
    explicit StoreModel(std::optional<std::wstring> file);
    ~StoreModel();
    StoreModel(const StoreModel&) = delete;
    StoreModel& operator=(const StoreModel&) = delete;

    /// Loads what other objects and processes have changed in the file. A reference to a group is valid until the next
    /// call of this function, or until the group is removed.
    void Refresh();

    /// Returns false before the first Refresh().
    bool IsLoaded() const { return m_isLoaded; }

    StoreGroup& Root() { return *m_root; }

    /// @name The current group, which exists even when another process has removed it from the file
    /// @{
    const StorePath& CurrentPath() const { return m_currentPath; }
    StoreGroup& Current() { return *m_current; }

    /// Makes the group if it is missing. The new group is stored when it gets its first entry.
    void SetCurrent(const StorePath& path);
    /// @}

    /// Returns the group at @a path, or null when there is none. A relative path starts at the current group. Fast when
    /// the path is the same as in the last call.
    StoreGroup* Find(std::wstring_view path);

    /// @name Changes, collected for Save()
    /// @{
    void Set(StoreGroup& group, std::wstring_view name, std::wstring_view value);
    void Remove(StoreGroup& group, std::wstring_view name);

    /// Stores the group even if it has no entries.
    void AddSection(StoreGroup& group);

    /// Removes the group's section from the store. The section stays if another process has put keys into it.
    void DropSection(StoreGroup& group);

    /// Removes a group with its contents. When that removes the current group, the parent of @a group becomes current.
    void RemoveGroup(StoreGroup& group);

    /// Moves the contents of the group into a new sibling group named @a newName.
    void RenameGroup(StoreGroup& group, const std::wstring& newName);

    /// Removes everything from the store, including the sections that are not groups: see PathOfSection().
    void RemoveAll();

    /// Returns the value of a key in a section that is not a group, or an empty text when there is none.
    std::wstring HiddenText(const std::wstring& section, const std::wstring& key) const;
    void SetHidden(const std::wstring& section, const std::wstring& key, const std::wstring& value);
    /// @}

    /// Returns false when saving failed; the changes are then kept for the next call. If the thread has a
    /// CLocalRegStore::Batch, the batch takes over the changes of the default store, and the result is true.
    bool Save();

private:
    using Change = CLocalRegStore::Change;

    void Rebuild();
    void NoteRemoval(StoreGroup& group);
    void CopyInto(StoreGroup& from, StoreGroup& to);
    void CollectChanges(StoreGroup& group, std::vector<Change>& changes) const;
    std::vector<Change> Changes() const;
    static void ForgetChanges(StoreGroup& group);

    const std::optional<std::wstring> m_file;
    /// The store as Refresh() loaded it last, with the changes that were not saved at that moment. Empty after Save()
    /// has saved changes.
    OwnedIniFile m_ini;
    bool m_isLoaded = false;
    std::unique_ptr<StoreGroup> m_root;

    StorePath m_currentPath;
    StoreGroup* m_current = nullptr;
    /// The groups that SetCurrent() or RenameGroup() has made. They exist even if the store has no sections for them.
    std::set<StorePath> m_made;

    std::wstring m_lastPath;
    StoreGroup* m_lastFound = nullptr;  ///< The last result of Find(); null when it may be out of date.

    /// @name Changes that the groups and entries do not record
    /// @{
    bool m_hasChanges = false;
    std::map<std::wstring, std::set<std::wstring>> m_removed;  ///< Removed keys, by their sections.
    std::set<std::wstring> m_dropped;                          ///< Removed sections.
    std::map<std::pair<std::wstring, std::wstring>, std::wstring> m_hidden;
    /// @}
};

}  // namespace fittings

#endif
