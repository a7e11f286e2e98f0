#include <fittings/config/persistence/ancestor_watch.h>

#include <wx/event.h>
#include <wx/window.h>

namespace {

bool IsAbove(const wxWindow* ancestor, const wxWindow* window)
{
    while (window && window != ancestor)
        window = window->GetParent();
    return window;
}

}  // namespace

namespace fittings {

AncestorWatch::AncestorWatch(wxWindow& window, std::function<void()> onDestruction)
    : m_onDestruction(std::make_shared<std::function<void()>>(std::move(onDestruction)))
{
    wxWindow* ancestor = &window;
    while (!ancestor->IsTopLevel() && ancestor->GetParent()) {
        ancestor = ancestor->GetParent();
        ancestor->Bind(wxEVT_DESTROY, [call = m_onDestruction, ancestor, &window](wxWindowDestroyEvent& event) {
            event.Skip();
            // Check whose event it is: the ancestor also receives the events of all windows below it. Check that the
            // ancestor is still above the window: the window may have a new parent by now.
            if (*call && event.GetEventObject() == ancestor && IsAbove(ancestor, &window))
                (*call)();
        });
    }
}

AncestorWatch::~AncestorWatch()
{
    *m_onDestruction = nullptr;
}

}  // namespace fittings
