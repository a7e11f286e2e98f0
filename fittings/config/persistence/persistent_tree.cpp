#include <fittings/config/persistence.h>

#include <optional>

#include <fittings/config/persistence/ancestor_watch.h>
#include <fittings/config/persistence/tree_paths.h>

namespace {

// Returns the tree. Returns null if the tree was deleted without Destroy(): by then, only its base class is left.
wxTreeCtrl* TreeOf(wxWindow* window)
{
    return dynamic_cast<wxTreeCtrl*>(window);
}

std::optional<wxString> StateOf(wxWindow* window)
{
    const wxTreeCtrl* const tree = TreeOf(window);
    return tree ? std::optional<wxString>(fittings::ToText(fittings::StepsOf(*tree))) : std::nullopt;
}

}  // namespace

wxPersistentTreeCtrl::wxPersistentTreeCtrl(wxTreeCtrl* tree)
    : wxPersistentWindow(tree),
      m_watch(std::make_unique<fittings::AncestorWatch>(*tree, [this] { m_state = StateOf(GetWindow()); }))
{
}

wxPersistentTreeCtrl::~wxPersistentTreeCtrl()
{
    ForgetFirstInView();
}

void wxPersistentTreeCtrl::Save() const
{
    if (const auto state = m_state ? m_state : StateOf(GetWindow()))
        SaveValue("Items", *state);
}

bool wxPersistentTreeCtrl::Restore()
{
    wxTreeCtrl* const tree = TreeOf(GetWindow());
    wxString text;
    if (!tree || !RestoreValue("Items", &text))
        return false;
    const auto steps = fittings::FromText(text.ToStdWstring());
    if (!steps)
        return false;
    fittings::RestoreSteps(*tree, *steps);
    // OnIdle() scrolls when the tree is shown: before that, the tree does not have its final size.
    ForgetFirstInView();
    m_scrollTo = text;
    if (!text.empty())
        tree->Bind(wxEVT_IDLE, &wxPersistentTreeCtrl::OnIdle, this);
    return true;
}

wxString wxPersistentTreeCtrl::GetKind() const
{
    return "Tree";
}

void wxPersistentTreeCtrl::OnIdle(wxIdleEvent& event)
{
    event.Skip();
    if (!GetWindow()->IsShownOnScreen())
        return;
    const auto steps = fittings::FromText(m_scrollTo.ToStdWstring());
    ForgetFirstInView();
    if (steps)
        fittings::ScrollToSteps(*Get(), *steps);
}

void wxPersistentTreeCtrl::ForgetFirstInView()
{
    if (m_scrollTo.empty())
        return;
    m_scrollTo.clear();
    GetWindow()->Unbind(wxEVT_IDLE, &wxPersistentTreeCtrl::OnIdle, this);
}
