// The paths that a persistent tree stores: any text is either restored or rejected, without an assertion. The text that
// the tree saves afterwards restores the same state in a tree with the same items.

#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include <wx/frame.h>

#include <fittings/config/persistence.h>
#include <fittings/config/persistence/tree_paths.h>
#include <fittings/platform/local_reg_store.h>
#include <fuzz/support/check.h>
#include <fuzz/support/toolkit.h>

namespace {

constexpr const wchar_t* kLabels[] = {L"", L"a", L"b", L"a|b", L"\\", L"\\0", L"1+:a|", L"\u3042", L"\U0001F600"};
constexpr long kStyles[] = {wxTR_DEFAULT_STYLE, wxTR_DEFAULT_STYLE | wxTR_MULTIPLE,
                            wxTR_DEFAULT_STYLE | wxTR_HIDE_ROOT};
constexpr std::size_t kMostItems = 40;

// An item below the root. A `parent` of 0 is the root; otherwise `parent` is the number of an earlier item, counted
// from 1 in the order of creation.
struct Item
{
    std::size_t parent;
    const wchar_t* label;
};

std::vector<Item> ConsumeItems(FuzzedDataProvider& bytes)
{
    std::vector<Item> items;
    const std::size_t count = bytes.ConsumeIntegralInRange<std::size_t>(0, kMostItems);
    while (items.size() < count)
        items.push_back({bytes.ConsumeIntegralInRange<std::size_t>(0, items.size()), bytes.PickValueInArray(kLabels)});
    return items;
}

// Returns a text for each item that is expanded or selected: "+" if it is expanded, "*" if it is selected, and then
// its full path. Ignores which item is the first in view, because only a tree that is shown scrolls to that item.
std::vector<std::wstring> Marked(const std::wstring& text)
{
    std::vector<std::wstring> marked;
    std::vector<std::wstring> path;
    const auto steps = fittings::FromText(text);
    Check(steps.has_value(), "a saved text can be read");
    for (fittings::TreeStep step : *steps) {
        const std::wstring marks = std::wstring(step.isExpanded ? L"+" : L"") + (step.isSelected ? L"*" : L"");
        step.isExpanded = step.isSelected = step.isFirstInView = false;
        path.resize(step.level);
        path.push_back(fittings::ToText({step}));
        if (!marks.empty())
            marked.push_back(std::accumulate(path.begin(), path.end(), marks));
    }
    return marked;
}

// Restores the text in a new tree, and returns what the tree saves when it is destroyed. @a isRestored is false if the
// text was rejected.
std::wstring SavedAfterRestoring(const std::wstring& text, const std::vector<Item>& items, long style, bool& isRestored)
{
    Check(CLocalRegStore::WriteString("Persistent_Options/Tree/tree", "Items", text), "the text can be stored");
    {
        wxFrame frame(nullptr, wxID_ANY, "fuzz");
        auto* const tree = new wxTreeCtrl(&frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, style);
        std::vector<wxTreeItemId> made{tree->AddRoot("root")};
        for (const Item& item : items)
            made.push_back(tree->AppendItem(made[item.parent], item.label));
        isRestored = wxPersistentRegisterAndRestore(tree, "tree");
        if (!isRestored) {
            for (const wxTreeItemId& item : made)
                Check(!tree->IsExpanded(item) || (style & wxTR_HIDE_ROOT) != 0, "a rejected text changes nothing");
        }
    }
    Check(wxStorePersistenceManager::Install().Flush(), "the state is saved");
    return CLocalRegStore::GetString(L"Persistent_Options/Tree/tree", L"Items", L"(none)");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StartToolkit();
    wxStorePersistenceManager::Install();
    FuzzedDataProvider bytes(data, size);
    const long style = bytes.PickValueInArray(kStyles);
    const std::vector<Item> items = ConsumeItems(bytes);
    const std::wstring text = ConsumeWideText(bytes);

    const auto steps = fittings::FromText(text);
    if (steps) {
        const auto again = fittings::FromText(fittings::ToText(*steps));
        Check(again && fittings::ToText(*again) == fittings::ToText(*steps), "a written text is read back unchanged");
    }

    bool isRestored = false;
    const std::wstring saved = SavedAfterRestoring(text, items, style, isRestored);
    Check(isRestored == steps.has_value(), "only a valid text is restored");
    Check(Marked(SavedAfterRestoring(saved, items, style, isRestored)) == Marked(saved), "the state is restored");
    Check(isRestored, "a saved text is restored");
    return 0;
}
