#ifndef FITTINGS_TREE_LABEL_SET_H_
#define FITTINGS_TREE_LABEL_SET_H_

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

// Private to the library.

namespace fittings {

/// The labels of expanded items, and their text: each label once, in ascending order, each followed by "|".
///
/// There may be a hundred thousand of them and more, and ten times as many that are asked for in vain: they share an
/// open hash table and blocks of memory, instead of an allocation each.
class LabelSet
{
public:
    LabelSet() : m_slots(1024) {}

    /// Reads a text, whose labels may come in any order and repeat. What follows the last separator is no label.
    explicit LabelSet(std::wstring_view text);

    /// Says of an item whether it is expanded. Of several with one label, the last one decides.
    void Note(std::wstring_view label, bool expanded);

    /// True when the last item with that label is expanded.
    bool Has(std::wstring_view label) const;

    /// Returns the labels as a text. Ends the use of the set.
    std::wstring TakeText();

private:
    // A label that was only seen collapsed is no different from one that was never seen, and has none.
    struct Entry
    {
        std::wstring_view label;
        std::uint32_t hash;
        bool expanded;
    };

    std::size_t FindSlot(std::wstring_view label, std::uint32_t hash) const;
    std::wstring_view Keep(std::wstring_view label);
    void Grow();

    std::pmr::monotonic_buffer_resource m_memory;
    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_slots;  // The number of an entry, from 1, or 0.
};

}  // namespace fittings

#endif
