#include <fittings/config/wx_window_state.h>

#include <algorithm>
#include <cwchar>
#include <optional>
#include <string>

#include <wx/aui/framemanager.h>
#include <wx/display.h>
#include <wx/frame.h>

#include <fittings/base/or_empty.h>
#include <fittings/config/aui_layout.h>
#include <fittings/config/first_showing.h>
#include <fittings/config/ui_config_mgr.h>
#include <fittings/platform/local_reg_store.h>

using fittings::OrEmpty;

namespace {

constexpr wchar_t kGeometrySection[] = L"wxWindowState";
constexpr wchar_t kMaximizedSection[] = L"wxWindowMaximize";
constexpr wchar_t kLayoutFile[] = L"wxAuiManagerState.ini";
constexpr wchar_t kLayoutSection[] = L"wxAuiManagerState";

/// Stored sizes up to this one, in either direction, are not applied.
constexpr int kTooSmall = 10;

/// Beside a reference narrower than this, half of the window sticks out.
constexpr int kWideReference = 800;

/// Coordinates and sizes on an X display are 16 bits wide. Larger numbers mean nothing to it, and would overflow when
/// they are added up.
constexpr long kFarthest = 32767;

/// Reads "x;y;width;height" as scanf's "%d;%d;%d;%d" does, blanks before a number and anything after the last one
/// included; but a number that is out of range becomes the nearest one in range, where scanf's result is undefined.
std::optional<wxRect> ParseGeometry(const std::wstring& text)
{
    int fields[4];
    const wchar_t* rest = text.c_str();
    for (int& field : fields) {
        if (&field != fields && *rest++ != L';')
            return std::nullopt;
        wchar_t* end = nullptr;
        field = static_cast<int>(std::clamp(std::wcstol(rest, &end, 10), -kFarthest, kFarthest));
        if (end == rest)
            return std::nullopt;
        rest = end;
    }
    return wxRect(fields[0], fields[1], fields[2], fields[3]);
}

/// Returns the window's rectangle on the screen.
///
/// Inside a top-level window that is not shown yet the toolkit cannot tell, and logs so. The sum of the positions
/// leaves out no more than the decorations.
wxRect ScreenRect(wxWindow& window)
{
    if (wxGetTopLevelParent(&window)->IsShown())
        return window.GetScreenRect();
    wxRect rect = window.GetRect();
    for (const wxWindow* inner = &window; !inner->IsTopLevel(); inner = inner->GetParent())
        rect.Offset(inner->GetParent()->GetPosition());
    return rect;
}

/// Returns the display that shows most of the window, as wxDisplay::GetFromWindow() is meant to.
///
/// The toolkit's own function knows of a window that is not created that it is on none. But it names some display even
/// for one that is far off all of them, and goes by where a hidden window was before it was moved.
int DisplayOf(wxWindow& window)
{
    if (wxDisplay::GetFromWindow(&window) == wxNOT_FOUND)
        return wxNOT_FOUND;
    const wxRect rect = ScreenRect(window);
    int best = wxNOT_FOUND;
    int largest = 0;
    for (unsigned n = 0; n < wxDisplay::GetCount(); ++n) {
        const wxRect shown = wxDisplay(n).GetGeometry().Intersect(rect);
        const int area = shown.width * shown.height;
        if (area > largest) {
            largest = area;
            best = static_cast<int>(n);
        }
    }
    return best;
}

/// Returns the part of @a rect that lies in @a area. A rectangle that lies wholly beside it, under a panel for one, is
/// moved into it instead: nothing would be left of the window.
wxRect FitInto(const wxRect& area, const wxRect& rect)
{
    const wxRect common = area.Intersect(rect);
    if (!common.IsEmpty())
        return common;
    const wxSize size(std::min(rect.width, area.width), std::min(rect.height, area.height));
    return wxRect(wxPoint(std::max(area.x, std::min(rect.x, area.x + area.width - size.x)),
                          std::max(area.y, std::min(rect.y, area.y + area.height - size.y))),
                  size);
}

/// Brings a window into the work area of the display it is on; false when it can be brought onto no display.
bool BringOntoDisplay(wxWindow& window)
{
    if (DisplayOf(window) == wxNOT_FOUND)
        window.SetSize(0, 0, -1, -1, wxSIZE_USE_EXISTING);
    const int display = DisplayOf(window);
    if (display == wxNOT_FOUND)
        return false;

    const wxRect area = wxDisplay(static_cast<unsigned>(display)).GetClientArea();
    wxRect rect(window.GetPosition(), window.GetSize());
    // No position yet: the window manager will choose one, and a window that fits is left to it.
    if (rect.GetPosition() == wxDefaultPosition)
        rect.SetPosition(area.GetPosition());
    if (!area.Contains(rect))
        window.SetSize(FitInto(area, rect), wxSIZE_AUTO);
    return true;
}

/// Maximises one frame when the event that was posted for it arrives, and is gone then. One whose frame is destroyed
/// first stays behind: nobody owns it.
class wxMaximizeEvtHandler : public wxEvtHandler
{
public:
    static void Post(wxFrame* frame)
    {
        auto* handler = new wxMaximizeEvtHandler;
        frame->Bind(wxEVT_MAXIMIZE, &wxMaximizeEvtHandler::OnMaximize, handler, frame->GetId(), wxID_ANY);
        wxMaximizeEvent event(frame->GetId());
        event.SetEventObject(frame);
        wxPostEvent(frame, event);
    }

private:
    void OnMaximize(wxMaximizeEvent& event)
    {
        auto* frame = wxDynamicCast(event.GetEventObject(), wxFrame);
        if (!frame)
            return;
        // Before maximising, so that the toolkit's own event about it does not come here.
        frame->Unbind(wxEVT_MAXIMIZE, &wxMaximizeEvtHandler::OnMaximize, this, frame->GetId(), wxID_ANY);
        frame->Maximize(true);
        delete this;
    }
};

}  // namespace

void wx_window_state::SaveState(wxWindow* window, const wchar_t* name)
{
    const wxSize size = window->GetSize();
    const wxPoint position = window->GetPosition();
    wchar_t text[64];
    std::swprintf(text, std::size(text), L"%d;%d;%d;%d", position.x, position.y, size.x, size.y);
    CLocalRegStore::WriteString(kGeometrySection, OrEmpty(name), text);
}

void wx_window_state::SaveState(wxFrame* frame, const wchar_t* name)
{
    const bool maximized = frame->IsMaximized();
    CLocalRegStore::Batch both;
    SaveState(static_cast<wxWindow*>(frame), name);
    CLocalRegStore::WriteProfileBool(kMaximizedSection, OrEmpty(name), maximized);
}

bool wx_window_state::LoadState(wxWindow* window, const wchar_t* name)
{
    auto* const topLevel = wxDynamicCast(window, wxTopLevelWindow);
    if (topLevel)
        fittings::ShowWithoutDelay(*topLevel);
    const auto stored = ParseGeometry(CLocalRegStore::GetString(kGeometrySection, OrEmpty(name), L""));
    if (!stored)
        return false;
    if (stored->width > kTooSmall && stored->height > kTooSmall) {
        window->SetSize(*stored, wxSIZE_ALLOW_MINUS_ONE);
        // A window that had to grow or shrink may have moved with it.
        window->SetSize(stored->x, stored->y, -1, -1, wxSIZE_USE_EXISTING);
        if (topLevel)
            fittings::KeepPlace(*topLevel);
    }
    return BringOntoDisplay(*window);
}

bool wx_window_state::LoadState(wxFrame* frame, const wchar_t* name)
{
    if (!LoadState(static_cast<wxWindow*>(frame), name))
        return false;
    if (CLocalRegStore::GetProfileBool(kMaximizedSection, OrEmpty(name), false))
        MaximizeFrame(frame);
    return true;
}

void wx_window_state::MaximizeFrame(wxFrame* frame)
{
    wxMaximizeEvtHandler::Post(frame);
}

void wx_window_state::MoveWindowToRightCorner(wxWindow* window, wxWindow* reference)
{
    const wxPoint corner = reference->GetScreenPosition();
    const int referenceWidth = reference->GetSize().x;
    const int width = window->GetSize().x;
    const int inside = referenceWidth < kWideReference ? width / 2 : width;
    window->SetSize(corner.x + referenceWidth - 1 - inside, corner.y, -1, -1, wxSIZE_USE_EXISTING);
}

void wx_window_state::SaveAuiManagerState(wxAuiManager* manager, const wchar_t* name)
{
    ui_config_mgr::WriteConfigString(kLayoutFile, kLayoutSection, name, manager->SavePerspective().wc_str());
}

bool wx_window_state::LoadAuiManagerState(wxAuiManager* manager, const wchar_t* name)
{
    const std::wstring layout = ui_config_mgr::GetConfigString(kLayoutFile, kLayoutSection, name);
    if (!fittings::IsAuiLayout(layout))
        return false;
    manager->LoadPerspective(layout, true);
    return true;
}
