#include <tests/support/gui.h>

#include <gtest/gtest.h>

#include <wx/toplevel.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <gallery/tour/event_pump.h>
#include <tests/support/patience.h>

namespace {

ExpectAssertions* g_expected = nullptr;

}  // namespace

void PumpPending()
{
    gallery::simulated_user::HandleEvents();
}

bool PumpUntil(const std::function<bool()>& done, int milliseconds)
{
    return gallery::simulated_user::WaitUntil(done, Patience() * milliseconds);
}

bool ShowAndSettle(wxTopLevelWindow* window)
{
    window->Show();
    window->Raise();
    // The window counts as settled when it is shown and active and has the same geometry in ten checks in a row.
    wxRect seen;
    int same = 0;
    return PumpUntil([&] {
        const wxRect now = window->GetScreenRect();
        same = (now == seen && window->IsShownOnScreen() && window->IsActive()) ? same + 1 : 0;
        seen = now;
        return same >= 10;
    });
}

void DestroyNow(wxWindow* window)
{
    window->Destroy();
    PumpPending();
}

bool ContainsFocus(const wxWindow& window)
{
    const wxWindow* const focus = wxWindow::FindFocus();
    return focus && (focus == &window || focus->GetParent() == &window);
}

void PointTo(const wxPoint& place)
{
    wxUIActionSimulator().MouseMove(place);
    EXPECT_TRUE(PumpUntil([&] { return wxGetMousePosition() == place; })) << place.x << ", " << place.y;
    PumpPending();
}

ExpectAssertions::ExpectAssertions() : m_outer(g_expected)
{
    g_expected = this;
}

ExpectAssertions::~ExpectAssertions()
{
    g_expected = m_outer;
}

bool NoteAssertion()
{
    if (!g_expected)
        return false;
    ++g_expected->m_count;
    return true;
}
