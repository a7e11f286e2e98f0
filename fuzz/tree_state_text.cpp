// The expanded items of a tree: loading a text expands exactly the items that have children and whose label is in the
// text. A saved text contains a label if the last item with this label, in the order of ForEach(), is expanded.

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include <wx/frame.h>

#include <fittings/platform/local_reg_store.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <fuzz/support/check.h>
#include <fuzz/support/toolkit.h>

namespace {

constexpr const wchar_t* kLabels[] = {L"", L"a", L"b", L"ab", L"a|b", L"B", L"\u3042", L"\U0001F600"};
constexpr std::size_t kMostItems = 40;

// Fills the tree. The bytes choose the parent and the label of each item.
void Fill(wxHandyTreeCtrl& tree, FuzzedDataProvider& bytes)
{
    std::vector<wxTreeItemId> items{tree.AddRoot(bytes.PickValueInArray(kLabels)).item};
    const std::size_t count = bytes.ConsumeIntegralInRange<std::size_t>(0, kMostItems);
    while (items.size() < count) {
        const std::size_t parent = bytes.ConsumeIntegralInRange<std::size_t>(0, items.size() - 1);
        items.push_back(tree.AppendItem(items[parent], bytes.PickValueInArray(kLabels)));
    }
}

std::set<std::wstring> LabelsIn(std::wstring text)
{
    std::set<std::wstring> labels;
    for (std::size_t end = text.find(L'|'); end != text.npos; end = text.find(L'|')) {
        labels.insert(text.substr(0, end));
        text.erase(0, end + 1);
    }
    return labels;
}

// Calls @a visit for @a item and for every item below it, parents before their children.
void ForEach(const wxTreeCtrl& tree, const wxTreeItemId& item, const std::function<void(const wxTreeItemId&)>& visit)
{
    visit(item);
    wxTreeItemIdValue cookie;
    for (wxTreeItemId child = tree.GetFirstChild(item, cookie); child.IsOk(); child = tree.GetNextChild(item, cookie))
        ForEach(tree, child, visit);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StartToolkit();
    FuzzedDataProvider bytes(data, size);
    wxFrame frame(nullptr, wxID_ANY, "fuzz");
    auto* const tree = new wxHandyTreeCtrl;
    tree->Create(&frame);
    Fill(*tree, bytes);
    const std::wstring text = ConsumeWideText(bytes);
    const std::set<std::wstring> stored = LabelsIn(text);
    Check(CLocalRegStore::WriteString(L"TreeControlState", L"tree", text.c_str()), "the text can be stored");

    wxTreeCursor root(tree, tree->GetRootItem());
    tree->LoadState("tree", root);
    std::map<std::wstring, bool> last;
    ForEach(*tree, root.item, [&](const wxTreeItemId& item) {
        const std::wstring label = tree->GetItemText(item).ToStdWstring();
        const bool isExpanded = tree->IsExpanded(item);
        Check(isExpanded == (stored.count(label) != 0 && tree->ItemHasChildren(item)),
              "exactly the named items are expanded");
        last[label] = isExpanded;
    });

    tree->SaveState("tree", root);
    std::wstring expected;
    for (const auto& [label, isExpanded] : last)
        if (isExpanded)
            expected += label + L"|";
    Check(CLocalRegStore::GetString(L"TreeControlState", L"tree", L"(none)") == expected,
          "what is expanded is saved, in order");
    return 0;
}
