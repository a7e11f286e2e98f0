#ifndef FITTINGS_CONFIG_STORE_TREE_H_
#define FITTINGS_CONFIG_STORE_TREE_H_

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace fittings {

/// Values by name, in the order in which they were added.
template <typename Value>
class NamedList
{
public:
    struct Item
    {
        std::wstring name;
        Value value;
    };

    std::size_t Size() const { return m_items.size(); }

    Value* Find(std::wstring_view name)
    {
        const auto found = m_places.find(name);
        return found == m_places.end() ? nullptr : &found->second->second.value;
    }

    /// Adds a value under a name that is not there yet.
    Value& Add(std::wstring_view name, Value value)
    {
        const auto place = m_items.emplace_hint(m_items.end(), m_next++, Item{std::wstring(name), std::move(value)});
        m_places.emplace(place->second.name, place);
        return place->second.value;
    }

    void Remove(std::wstring_view name)
    {
        const auto found = m_places.find(name);
        if (found == m_places.end())
            return;
        const auto place = found->second;
        m_places.erase(found);
        m_items.erase(place);
    }

    /// Returns the first item at @a place or behind, or null, and moves the place behind it. Places stay what they are when
    /// items come and go.
    const Item* Next(long& place) const
    {
        const auto found = m_items.lower_bound(place);
        if (found == m_items.end())
            return nullptr;
        place = found->first + 1;
        return &found->second;
    }

    /// The items by their places.
    const std::map<long, Item>& Items() const { return m_items; }

private:
    std::map<long, Item> m_items;
    std::unordered_map<std::wstring_view, typename std::map<long, Item>::iterator> m_places;
    long m_next = 0;
};

/// A group of entries and groups.
struct StoreGroup
{
    StoreGroup(StoreGroup* ofParent, std::wstring_view withName) : parent(ofParent), name(withName) {}

    /// The section of the store that has the group's entries.
    std::wstring Section() const;

    bool IsEmpty() const { return entries.Size() == 0 && groups.Size() == 0; }

    StoreGroup* const parent;  ///< Null for the root.
    const std::wstring name;
    bool isSection = false;  ///< The store has the section, or will have it.
    NamedList<std::wstring> entries;
    NamedList<std::unique_ptr<StoreGroup>> groups;
};

/// A group's names, from the root on.
using StorePath = std::vector<std::wstring>;

/// Groups may be so deep in each other, and no deeper.
inline constexpr std::size_t kMaxStoreDepth = 100;

/// The section that has the entries of the group at @a path.
std::wstring SectionOf(const StorePath& path);

/// The reverse; none when the name is no path of groups.
std::optional<StorePath> PathOfSection(std::wstring_view section);

/// Follows @a text as the toolkit does, from the root or, where it does not begin with the separator, from @a current: empty
/// steps and "." lead nowhere, ".." up.
StorePath FollowedPath(const StorePath& current, std::wstring_view text);

/// Null when there is no such group.
StoreGroup* FindStoreGroup(StoreGroup& root, const StorePath& path);

/// Makes the groups that are missing.
StoreGroup& MakeStoreGroup(StoreGroup& root, const StorePath& path);

}  // namespace fittings

#endif
