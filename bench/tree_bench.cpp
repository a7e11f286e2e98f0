// Saving and restoring the expanded items of a large tree, compared with the calls of the toolkit that this needs.

#include <ctime>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>

#include <wx/frame.h>
#include <wx/wupdlock.h>

#include <fittings/platform/local_reg_store.h>
#include <fittings/tree/handy_tree_ctrl.h>

namespace {

// A root with @a count children in a shown frame. Expand() expands every @a step-th child.
class Siblings
{
public:
    Siblings(int count, int step) : m_frame(new wxFrame(nullptr, wxID_ANY, "bench")), m_tree(new wxHandyTreeCtrl)
    {
        m_tree->Create(m_frame.get());
        const wxWindowUpdateLocker frozen(m_tree);
        m_root = m_tree->AddRoot("root");
        for (int i = 0; i < count; ++i) {
            wxTreeCursor item = m_root.AppendItem(wxString::Format("folder %06d", i));
            item.SetChildren(true);
            if (i % step == 0)
                m_chosen.push_back(item.item);
        }
        m_root.Expand();
        m_frame->Show();
    }

    void Expand()
    {
        const wxWindowUpdateLocker frozen(m_tree);
        for (const wxTreeItemId& item : m_chosen)
            m_tree->Expand(item);
    }

    // Collapses the root first, so that the other items are not visible when they are collapsed. The toolkit lays out
    // all visible items after each change, even while the tree is frozen.
    void Collapse()
    {
        const wxWindowUpdateLocker frozen(m_tree);
        m_tree->Collapse(m_root.item);
        for (const wxTreeItemId& item : m_chosen)
            m_tree->Collapse(item);
        m_root.Expand();
    }

    wxHandyTreeCtrl& Tree() { return *m_tree; }
    wxTreeCursor& Root() { return m_root; }

private:
    std::unique_ptr<wxFrame> m_frame;
    wxHandyTreeCtrl* m_tree;
    wxTreeCursor m_root;
    std::vector<wxTreeItemId> m_chosen;
};

void Save(benchmark::State& state, int count)
{
    Siblings siblings(count, 2);
    siblings.Expand();
    for (auto _ : state)
        siblings.Tree().SaveState("bench", siblings.Root());
}

// Measures saving a chain of expanded items.
void SaveDeep(benchmark::State& state, int depth)
{
    const std::unique_ptr<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "bench"));
    auto* const tree = new wxHandyTreeCtrl;
    tree->Create(frame.get());
    wxTreeCursor root = tree->AddRoot("root");
    std::vector<wxTreeItemId> levels{root.item};
    for (int i = 0; i < depth; ++i)
        levels.push_back(tree->AppendItem(levels.back(), wxString::Format("folder %06d", i)));
    for (auto level = levels.rbegin(); level != levels.rend(); ++level)
        tree->Expand(*level);
    for (auto _ : state)
        tree->SaveState("bench", root);
}

void CopyEveryLabel(benchmark::State& state, int count)
{
    Siblings siblings(count, 2);
    siblings.Expand();
    const wxTreeCtrl& tree = siblings.Tree();
    for (auto _ : state) {
        wxTreeItemIdValue cookie;
        wxTreeItemId child = tree.GetFirstChild(siblings.Root().item, cookie);
        for (; child.IsOk(); child = tree.GetNextChild(siblings.Root().item, cookie))
            benchmark::DoNotOptimize(tree.GetItemText(child));
    }
}

// Returns the processor time of @a work in seconds. The work does not wait, so on an idle machine the elapsed time is
// the same.
template <typename Work>
double ProcessorTime(Work work)
{
    const std::clock_t begin = std::clock();
    work();
    return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

// Measures LoadState(), and in the counter "peer" the toolkit's calls that expand the same items. Each round measures
// both on the same tree, so that the memory layout and other programs on the machine affect both alike.
void Load(benchmark::State& state, int count)
{
    Siblings siblings(count, 10);
    siblings.Expand();
    siblings.Tree().SaveState("bench", siblings.Root());
    double peer = 0;
    for (auto _ : state) {
        siblings.Collapse();
        peer += ProcessorTime([&] { siblings.Expand(); });
        siblings.Collapse();
        state.SetIterationTime(ProcessorTime([&] { siblings.Tree().LoadState("bench", siblings.Root()); }));
    }
    state.counters["peer"] = benchmark::Counter(peer * 1e9, benchmark::Counter::kAvgIterations);
}

BENCHMARK_CAPTURE(Save, 10k, 10'000)->Name("tree/save-10k");
BENCHMARK_CAPTURE(Save, 100k, 100'000)->Name("tree/save-100k");
BENCHMARK_CAPTURE(SaveDeep, 1k, 1'000)->Name("tree/save-deep-1k");
BENCHMARK_CAPTURE(SaveDeep, 10k, 10'000)->Name("tree/save-deep-10k");
BENCHMARK_CAPTURE(CopyEveryLabel, 100k, 100'000)->Name("tree/save-100k/peer");
BENCHMARK_CAPTURE(Load, 1k, 10'000)->Name("tree/load-1k")->UseManualTime()->MinTime(0.2);
BENCHMARK_CAPTURE(Load, 10k, 100'000)->Name("tree/load-10k")->UseManualTime()->MinTime(0.2);

}  // namespace
