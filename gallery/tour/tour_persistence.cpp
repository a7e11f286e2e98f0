// A step of the tour that changes another window, closes it and opens it again. The window's constructor restores the
// window and everything in it with one call.

#include <utility>
#include <vector>

#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/splitter.h>
#include <wx/treectrl.h>

#include <fittings/config/persistence.h>

#include <gallery/pages/window_helpers.h>
#include <gallery/tour/screenshot.h>
#include <gallery/tour/simulated_user.h>
#include <gallery/tour/tour.h>

namespace gallery {

using namespace simulated_user;

namespace {

// A window with a splitter, a tree, and a list with columns. The toolkit deletes it after it is closed.
class PlanetsFrame : public wxFrame
{
public:
    PlanetsFrame() : wxFrame(nullptr, wxID_ANY, "Planets", wxDefaultPosition, wxSize(640, 300))
    {
        auto* const splitter = new wxSplitterWindow(this);
        m_tree = new wxTreeCtrl(splitter);
        m_list = new wxListView(splitter);
        FillTree();
        FillList();
        splitter->SplitVertically(m_tree, m_list, 140);
        m_splitter = splitter;
        wxPersistentRegisterAndRestoreAll(this, "Planets");
        Show();
        Raise();
    }

    // Changes the splitter, the tree and the columns as a person may change them.
    void Arrange()
    {
        m_splitter->SetSashPosition(230);
        m_tree->Expand(m_tree->GetRootItem());
        m_tree->Expand(m_earth);
        m_tree->Expand(m_jupiter);
        m_tree->SelectItem(m_tree->GetLastChild(m_jupiter));
        m_list->SetColumnWidth(0, 160);
        m_list->SetColumnWidth(1, 90);
    }

    bool IsArranged() const
    {
        return m_splitter->GetSashPosition() == 230 && m_tree->IsExpanded(m_earth) && m_tree->IsExpanded(m_jupiter) &&
               !m_tree->IsExpanded(m_saturn) && m_tree->IsSelected(m_tree->GetLastChild(m_jupiter)) &&
               m_list->GetColumnWidth(0) == 160 && m_list->GetColumnWidth(1) == 90;
    }

private:
    void FillTree()
    {
        const wxTreeItemId sun = m_tree->AddRoot("Sun");
        m_earth = m_tree->AppendItem(sun, "Earth");
        m_tree->AppendItem(m_earth, "Moon");
        m_jupiter = m_tree->AppendItem(sun, "Jupiter");
        for (const char* const moon : {"Io", "Europa", "Ganymede", "Callisto"})
            m_tree->AppendItem(m_jupiter, moon);
        m_saturn = m_tree->AppendItem(sun, "Saturn");
        m_tree->AppendItem(m_saturn, "Titan");
    }

    void FillList()
    {
        m_list->AppendColumn("Moon");
        m_list->AppendColumn("Days", wxLIST_FORMAT_RIGHT);
        const std::vector<std::pair<wxString, wxString>> moons = {
            {"Io", "1.77"}, {"Europa", "3.55"}, {"Ganymede", "7.15"}, {"Callisto", "16.69"}};
        for (long row = 0; row < static_cast<long>(moons.size()); ++row) {
            m_list->InsertItem(row, moons[static_cast<std::size_t>(row)].first);
            m_list->SetItem(row, 1, moons[static_cast<std::size_t>(row)].second);
        }
    }

    wxSplitterWindow* m_splitter = nullptr;
    wxTreeCtrl* m_tree = nullptr;
    wxListView* m_list = nullptr;
    wxTreeItemId m_earth;
    wxTreeItemId m_jupiter;
    wxTreeItemId m_saturn;
};

}  // namespace

bool Tour::RememberAnotherWindow()
{
    const auto isClosed = [windows = wxTopLevelWindows.size()] { return wxTopLevelWindows.size() == windows; };
    auto* window = new PlanetsFrame;
    if (!Waits([&] { return window->IsShownOnScreen(); }, "another window is shown"))
        return false;
    window->Arrange();
    if (!Waits([&] { return window->IsArranged(); }, "it is arranged"))
        return false;
    window->Close();
    if (!Waits(isClosed, "it closes"))
        return false;

    window = new PlanetsFrame;
    if (!Waits([&] { return window->IsShownOnScreen() && window->IsArranged(); }, "the next one is as it was left"))
        return false;
    PointAt(FrameRect(window->GetHandle()).GetBottomRight() + wxSize(4, 4));
    const bool well =
        IsTrue(SaveScreenshot(window->GetHandle(), m_pictures + "/persistence.png"), "the picture is taken");
    window->Close();
    return Waits(isClosed, "it closes again") && well;
}

}  // namespace gallery
