#include <fittings/config/persistence/window_record.h>

#include <wx/event.h>
#include <wx/toplevel.h>

#include <fittings/config/window_geometry.h>

namespace fittings {

std::shared_ptr<WindowRecord> WindowRecord::Attach(wxWindow& window, std::function<void()> atEnd)
{
    auto record = std::make_shared<WindowRecord>(std::move(atEnd));
    record->m_self = record;
    // The handlers of a window are destroyed last, after its children.
    window.Bind(wxEVT_DESTROY, [record](wxWindowDestroyEvent& event) { event.Skip(); });
    return record;
}

void WindowRecord::Follow(wxTopLevelWindow& window)
{
    if (m_normal)
        return;
    m_normal = window.GetRect();
    const auto note = [record = m_self, &window](wxEvent& event) {
        event.Skip();
        if (const auto self = record.lock())
            self->RecordPlace(window);
    };
    window.Bind(wxEVT_SIZE, note);
    window.Bind(wxEVT_MOVE, note);
    window.Bind(wxEVT_SHOW, [record = m_self, &window](wxShowEvent& event) {
        event.Skip();
        const auto self = record.lock();
        if (self && event.GetEventObject() == &window)
            self->m_wasMaximized = !event.IsShown() && window.IsMaximized();
    });
}

void WindowRecord::RecordPlace(const wxTopLevelWindow& window)
{
    // The size event of a window that is being maximised may come before its maximise event.
    const wxRect rect = window.GetRect();
    if (window.IsShown() && !IsOutOfItsPlace(window) && !CoversWorkArea(rect))
        m_normal = rect;
}

bool WindowRecord::IsMaximized(const wxTopLevelWindow& window) const
{
    return window.IsMaximized() || m_wasMaximized;
}

bool WindowRecord::IsOutOfItsPlace(const wxTopLevelWindow& window) const
{
    return IsMaximized(window) || window.IsFullScreen() || window.IsIconized();
}

}  // namespace fittings
