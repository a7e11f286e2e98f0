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

    /// Brings in what others have stored. References to groups are good until the next call.
    void Refresh();

    /// False before the first Refresh().
    bool IsLoaded() const { return m_isLoaded; }

    StoreGroup& Root() { return *m_root; }

    /// @name The current group, which is there whatever others remove
    /// @{
    const StorePath& CurrentPath() const { return m_currentPath; }
    StoreGroup& Current() { return *m_current; }

    /// Makes the group where it is missing. The store gets it with its first entry.
    void SetCurrent(const StorePath& path);
    /// @}

    /// The group that a path leads to, from the current one on, or null. Quick for the same path again.
    StoreGroup* Find(std::wstring_view path);

    /// @name Changes, collected for Save()
    /// @{
    void Set(StoreGroup& group, std::wstring_view name, std::wstring_view value);
    void Remove(StoreGroup& group, std::wstring_view name);

    /// Stores the group though it may have no entries.
    void AddSection(StoreGroup& group);

    /// Stores the group without entries no more, unless it is there for the groups in it.
    void DropSection(StoreGroup& group);

    /// Removes a group with all that it holds. When the current group is gone by that, the nearest one above is
    /// current.
    void RemoveGroup(StoreGroup& group);

    /// Moves all that the group holds into a new group beside it.
    void RenameGroup(StoreGroup& group, const std::wstring& newName);

    /// Removes all that the store holds, sections that are no groups included.
    void RemoveAll();

    /// A setting whose section is no group.
    std::wstring HiddenText(const std::wstring& section, const std::wstring& key) const;
    void SetHidden(const std::wstring& section, const std::wstring& key, const std::wstring& value);
    /// @}

    /// False when it could not be saved. It is then collected still.
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
    OwnedIniFile m_ini;  ///< What the store held, and changes that were made by then.
    bool m_isLoaded = false;
    std::unique_ptr<StoreGroup> m_root;

    StorePath m_currentPath;
    StoreGroup* m_current = nullptr;
    std::set<StorePath> m_made;  ///< By SetCurrent().

    std::wstring m_lastPath;
    StoreGroup* m_lastFound = nullptr;  ///< By Find(); null when that may lead elsewhere now.

    /// @name Changes, but for those that the groups and entries know of
    /// @{
    bool m_hasChanges = false;
    std::map<std::wstring, std::set<std::wstring>> m_removed;  ///< Keys by their sections.
    std::set<std::wstring> m_dropped;                          ///< Sections.
    std::map<std::pair<std::wstring, std::wstring>, std::wstring> m_hidden;
    /// @}
};

}  // namespace fittings

#endif
