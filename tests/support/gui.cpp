#include <tests/support/gui.h>

#include <chrono>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/toplevel.h>

#include <tests/support/patience.h>

namespace {

ExpectAssertions* g_expected = nullptr;

}  // namespace

void PumpPending()
{
    wxEventLoopBase* loop = wxEventLoopBase::GetActive();
    while (loop->Pending())
        loop->Dispatch();
    // Pending() drops the idle source: without this, posted events never arrive.
    wxTheApp->ProcessPendingEvents();
    loop->ProcessIdle();
}

bool PumpUntil(const std::function<bool()>& done, int milliseconds)
{
    const auto deadline = std::chrono::steady_clock::now() + Patience() * std::chrono::milliseconds(milliseconds);
    for (;;) {
        PumpPending();
        if (done())
            return true;
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        wxEventLoopBase::GetActive()->DispatchTimeout(5);
    }
}

bool ShowAndSettle(wxTopLevelWindow* window)
{
    window->Show();
    window->Raise();
    // The frame counts as settled when the same geometry is seen over several turns.
    wxRect seen;
    int same = 0;
    return PumpUntil([&] {
        const wxRect now = window->GetScreenRect();
        same = (now == seen && window->IsShownOnScreen() && window->IsActive()) ? same + 1 : 0;
        seen = now;
        return same >= 10;
    });
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
