#ifndef FITTINGS_CONFIG_STORE_MODEL_H_
#define FITTINGS_CONFIG_STORE_MODEL_H_

#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

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

    StoreGroup& Root() { return *m_root; }

    /// @name The current group, which is there whatever others remove
    /// @{
    const StorePath& CurrentPath() const { return m_currentPath; }
    StoreGroup& Current() { return *m_current; }

    /// Makes the group where it is missing. The store gets it with its first entry.
    void SetCurrent(const StorePath& path);
    /// @}

    /// @name Changes, collected for Save()
    /// @{
    void Set(StoreGroup& group, const std::wstring& name, const std::wstring& value);
    void Remove(StoreGroup& group, const std::wstring& name);

    /// Stores the group though it may have no entries.
    void AddSection(StoreGroup& group);

    /// Stores the group without entries no more, unless it is there for the groups in it.
    void DropSection(StoreGroup& group);

    /// Removes a group with all that it holds. When the current group is gone by that, the nearest one above is current.
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

    struct DestroyIni
    {
        void operator()(CIniFile* ini) const { CLocalRegStore::DestroyIniFile(ini); }
    };

    void Rebuild();
    void Note(Change change);
    void NoteRemoval(StoreGroup& group);
    void CopyInto(StoreGroup& from, StoreGroup& to);

    const std::optional<std::wstring> m_file;
    std::unique_ptr<CIniFile, DestroyIni> m_ini;  ///< What the store held, and changes that were made by then.
    std::unique_ptr<StoreGroup> m_root;

    StorePath m_currentPath;
    StoreGroup* m_current = nullptr;
    std::set<StorePath> m_made;  ///< By SetCurrent().

    std::vector<Change> m_changes;
    std::unordered_map<std::wstring, std::size_t> m_indices;
};

}  // namespace fittings

#endif
