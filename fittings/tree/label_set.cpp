#include <fittings/tree/label_set.h>

#include <algorithm>
#include <functional>

namespace {

constexpr wchar_t kSeparator = L'|';

std::uint32_t HashOf(std::wstring_view label)
{
    return static_cast<std::uint32_t>(std::hash<std::wstring_view>()(label));
}

// Sorts by merging what is in order already: siblings mostly are, and then one comparison each is enough.
template <typename T, typename Less>
void MergeRuns(std::vector<T>& items, Less less)
{
    std::vector<size_t> ends{0};
    for (size_t i = 1; i < items.size(); ++i) {
        if (less(items[i], items[i - 1]))
            ends.push_back(i);
    }
    ends.push_back(items.size());
    while (ends.size() > 2) {
        size_t kept = 1;
        for (size_t i = 2; i < ends.size(); i += 2) {
            const auto begin = items.begin();
            std::inplace_merge(begin + ends[i - 2], begin + ends[i - 1], begin + ends[i], less);
            ends[kept++] = ends[i];
        }
        if (ends.size() % 2 == 0)
            ends[kept++] = ends.back();
        ends.resize(kept);
    }
}

}  // namespace

namespace fittings {

LabelSet::LabelSet(std::wstring_view text) : LabelSet()
{
    for (size_t end = text.find(kSeparator); end != text.npos; end = text.find(kSeparator)) {
        Note(text.substr(0, end), true);
        text.remove_prefix(end + 1);
    }
}

void LabelSet::Note(std::wstring_view label, bool expanded)
{
    const std::uint32_t hash = HashOf(label);
    const size_t slot = FindSlot(label, hash);
    if (m_slots[slot]) {
        m_entries[m_slots[slot] - 1].expanded = expanded;
        return;
    }
    if (!expanded)
        return;
    m_entries.push_back({Keep(label), hash, true});
    m_slots[slot] = static_cast<std::uint32_t>(m_entries.size());
    // Most labels are looked up in vain, which a sparse table answers by its first slot.
    if (m_entries.size() > m_slots.size() / 4)
        Grow();
}

bool LabelSet::Has(std::wstring_view label) const
{
    const std::uint32_t entry = m_slots[FindSlot(label, HashOf(label))];
    return entry && m_entries[entry - 1].expanded;
}

std::wstring LabelSet::TakeText()
{
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), [](const Entry& e) { return !e.expanded; }),
                    m_entries.end());
    MergeRuns(m_entries, [](const Entry& a, const Entry& b) { return a.label < b.label; });
    size_t length = 0;
    for (const Entry& entry : m_entries)
        length += entry.label.size() + 1;
    std::wstring text;
    text.reserve(length);
    for (const Entry& entry : m_entries)
        text.append(entry.label).push_back(kSeparator);
    return text;
}

// Returns the slot of the label, or the empty one where it belongs.
size_t LabelSet::FindSlot(std::wstring_view label, std::uint32_t hash) const
{
    size_t slot = hash & (m_slots.size() - 1);
    for (; m_slots[slot]; slot = (slot + 1) & (m_slots.size() - 1)) {
        const Entry& entry = m_entries[m_slots[slot] - 1];
        if (entry.hash == hash && entry.label == label)
            break;
    }
    return slot;
}

std::wstring_view LabelSet::Keep(std::wstring_view label)
{
    auto* copy = static_cast<wchar_t*>(m_memory.allocate(label.size() * sizeof(wchar_t), alignof(wchar_t)));
    std::copy(label.begin(), label.end(), copy);
    return {copy, label.size()};
}

void LabelSet::Grow()
{
    m_slots.assign(m_slots.size() * 2, 0);
    std::uint32_t number = 0;
    for (const Entry& entry : m_entries)
        m_slots[FindSlot(entry.label, entry.hash)] = ++number;
}

}  // namespace fittings
