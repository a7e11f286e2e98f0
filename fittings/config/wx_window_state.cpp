#include <fittings/config/wx_window_state.h>

#include <cwchar>
#include <optional>
#include <string>

#include <wx/aui/framemanager.h>
#include <wx/frame.h>

#include <fittings/base/or_empty.h>
#include <fittings/config/aui_layout.h>
#include <fittings/config/first_showing.h>
#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/window_geometry.h>
#include <fittings/platform/local_reg_store.h>

using fittings::OrEmpty;

namespace {

constexpr wchar_t kGeometrySection[] = L"wxWindowState";
constexpr wchar_t kMaximizedSection[] = L"wxWindowMaximize";
constexpr wchar_t kLayoutFile[] = L"wxAuiManagerState.ini";
constexpr wchar_t kLayoutSection[] = L"wxAuiManagerState";

// If the reference of MoveWindowToRightCorner() is narrower than this, in pixels, half of the window extends past the
// reference's right edge.
constexpr int kWideReference = 800;

// Reads "x;y;width;height" as scanf's "%d;%d;%d;%d" does: blanks before a number and any text after the last number
// are allowed. ToPixels() limits each number, even a number that is too large for scanf.
std::optional<wxRect> ParseGeometry(const std::wstring& text)
{
    int fields[4];
    const wchar_t* rest = text.c_str();
    for (int& field : fields) {
        if (&field != fields && *rest++ != L';')
            return std::nullopt;
        wchar_t* end = nullptr;
        field = fittings::ToPixels(std::wcstol(rest, &end, 10));
        if (end == rest)
            return std::nullopt;
        rest = end;
    }
    return wxRect(fields[0], fields[1], fields[2], fields[3]);
}

// Post() makes a handler and posts an event to the frame. When the event arrives, the handler maximises the frame and
// deletes itself. If the frame is destroyed first, the handler leaks.
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
        auto* frame = dynamic_cast<wxFrame*>(event.GetEventObject());
        if (!frame)
            return;
        // Unbind before maximising: the toolkit's own maximise event must not arrive here.
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
    fittings::ShowWithoutDelay(*window);
    const auto stored = ParseGeometry(CLocalRegStore::GetString(kGeometrySection, OrEmpty(name), L""));
    if (!stored)
        return false;
    return fittings::RestoreGeometry(*window, *stored);
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
