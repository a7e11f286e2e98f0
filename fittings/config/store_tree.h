#ifndef FITTINGS_CONFIG_STORE_TREE_H_
#define FITTINGS_CONFIG_STORE_TREE_H_

#include <algorithm>
#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace fittings {

/// Values by name, in the order in which they were added. Each item has a number, its place, that does not change when
/// other items are added or removed.
template <typename Value>
class NamedList
{
public:
    struct Item
    {
        std::wstring name;
        Value value;
        bool isRemoved = false;
    };

    std::size_t Size() const { return m_places.size(); }

    Value* Find(std::wstring_view name)
    {
        // Programs often ask for items in the order of the list. So compare the next name first, which is faster than a
        // search.
        if (m_afterFound >= m_items.size() || m_items[m_afterFound].isRemoved || m_items[m_afterFound].name != name) {
            const auto found = m_places.find(name);
            if (found == m_places.end())
                return nullptr;
            m_afterFound = static_cast<std::size_t>(found->second - m_first);
        }
        return &m_items[m_afterFound++].value;
    }

    /// Adds a value under a name that is not in the list yet.
    Value& Add(std::wstring_view name, Value value)
    {
        m_items.push_back({std::wstring(name), std::move(value)});
        m_places.emplace(m_items.back().name, m_first + static_cast<long>(m_items.size()) - 1);
        return m_items.back().value;
    }

    void Remove(std::wstring_view name)
    {
        const auto found = m_places.find(name);
        if (found == m_places.end())
            return;
        Item& item = m_items[static_cast<std::size_t>(found->second - m_first)];
        m_places.erase(found);
        item.isRemoved = true;
        item.value = Value();
        for (; !m_items.empty() && m_items.front().isRemoved; ++m_first)
            m_items.pop_front();
    }

    /// Returns the first item at or after @a place, and moves @a place past that item. Returns null when there is none.
    const Item* Next(long& place) const { return NextOf(*this, place); }
    Item* Next(long& place) { return NextOf(*this, place); }

private:
    template <typename List>
    static auto NextOf(List& list, long& place) -> decltype(&list.m_items.front())
    {
        const long end = list.m_first + static_cast<long>(list.m_items.size());
        for (place = std::max(place, list.m_first); place < end; ++place) {
            auto& item = list.m_items[static_cast<std::size_t>(place - list.m_first)];
            if (!item.isRemoved) {
                ++place;
                return &item;
            }
        }
        return nullptr;
    }

    std::deque<Item> m_items;
    long m_first = 0;              ///< The place of the first item.
    std::size_t m_afterFound = 0;  ///< Where Find() looks first: usually behind the last item that it found.
    std::unordered_map<std::wstring_view, long> m_places;
};

/// The text of an entry.
struct StoreEntry
{
    std::wstring text;
    bool isChanged = false;  ///< True while the change is not saved.
};

/// A group of entries and groups.
struct StoreGroup
{
    StoreGroup(StoreGroup* ofParent, std::wstring_view withName) : parent(ofParent), name(withName) {}

    /// Returns the name of the store's section that contains the group's entries.
    std::wstring Section() const;

    bool IsEmpty() const { return entries.Size() == 0 && groups.Size() == 0; }

    StoreGroup* const parent;  ///< Null for the root.
    const std::wstring name;
    bool isSection = false;  ///< True if the store has the section, or will have it after the next save.
    bool isMade = false;     ///< True if the next save stores the section even without entries.
    NamedList<StoreEntry> entries;
    NamedList<std::unique_ptr<StoreGroup>> groups;
};

/// The names of a group and of the groups above it, from the topmost down; empty for the root.
using StorePath = std::vector<std::wstring>;

/// The greatest depth of nested groups.
inline constexpr std::size_t kMaxStoreDepth = 100;

/// Returns the name of the section that contains the entries of the group at @a path.
std::wstring SectionOf(const StorePath& path);

/// Returns the path of the group that a section represents; none when the section's name is not a path of groups.
std::optional<StorePath> PathOfSection(std::wstring_view section);

/// Resolves @a text as the toolkit does: from the root when it is empty or begins with the separator, otherwise from
/// @a current. Empty steps and "." are skipped; ".." leads to the parent.
StorePath FollowedPath(const StorePath& current, std::wstring_view text);

/// Returns the group at @a path, or null when there is none.
StoreGroup* FindStoreGroup(StoreGroup& root, const StorePath& path);

/// Returns the group at @a path. First makes this group and the groups above it if they are missing.
StoreGroup& MakeStoreGroup(StoreGroup& root, const StorePath& path);

}  // namespace fittings

#endif
