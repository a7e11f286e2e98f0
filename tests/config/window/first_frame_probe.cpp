// first_frame_probe KIND store X;Y;WIDTH;HEIGHT: shows a frame with this geometry and stores the geometry. Instead of
// the geometry, the argument can be "corner" or "last-corner": the frame then has 500 x 340 pixels and is in the top
// left or bottom right corner of the work area.
//
// first_frame_probe KIND restore: restores a frame and shows it as the first window of the process.
//
// "store" waits until the geometry on the screen is the given one, and "restore" until it is the stored one. When the
// geometry no longer changes, both print it. If the wait takes too long, they print the geometry at that time. If the
// frame is maximised, "store" prints the given geometry, because this is the geometry that is stored.
//
// KIND is one of these words:
//
//   plain       a frame
//   menu        a frame with a menu bar, a status bar and a text field
//   fixed       a frame that the user cannot resize
//   persistent  a frame that the toolkit's persistence stores and restores
//   maximized   like persistent, but the frame is maximised before it is stored, and unmaximised after it is restored
//   dragged     like maximized, but the left mouse button is down while the restored frame is unmaximised, and
//               "restore" then waits only for the stored size, at any position
//   corrected   like plain, but decorations of a wrong size are announced for the restored frame

#include <cstdio>
#include <string>

#include <gtk/gtk.h>
#include <wx/display.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>
#include <wx/wx.h>

#include <fittings/config/persistence.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/support/patience.h>
#include <tests/support/xdotool.h>

#include <gdk/gdkx.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>

namespace {

constexpr wchar_t kPersistentFrame[] = L"Persistent_Options/Window/Main";
constexpr int kPause = 20;
constexpr int kTimesTheSame = 25;
constexpr int kLongest = 20000;

std::string Text(const wxRect& rect)
{
    return wxString::Format("%d;%d;%d;%d", rect.x, rect.y, rect.width, rect.height).utf8_string();
}

std::string SizeText(const wxRect& rect)
{
    return wxString::Format(";%d;%d", rect.width, rect.height).utf8_string();
}

// Asks the X server for the frame's rectangle on the screen, with the decorations. Returns an empty rectangle until
// the frame is mapped and the window manager has announced the decorations.
wxRect OnScreen(const wxFrame& frame)
{
    GdkWindow* const window = gtk_widget_get_window(frame.GetHandle());
    if (!window || !gtk_widget_get_mapped(frame.GetHandle()))
        return {};
    Display* const display = GDK_WINDOW_XDISPLAY(window);
    const Window id = GDK_WINDOW_XID(window);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, id, XInternAtom(display, "_NET_FRAME_EXTENTS", False), 0, 4, False, XA_CARDINAL, &type,
                       &format, &count, &left, &data);
    wxRect rect;
    if (data && count == 4) {
        const auto* const extents = reinterpret_cast<const long*>(data);
        XWindowAttributes attributes;
        XGetWindowAttributes(display, id, &attributes);
        Window child = None;
        XTranslateCoordinates(display, id, attributes.root, 0, 0, &rect.x, &rect.y, &child);
        rect.x -= static_cast<int>(extents[0]);
        rect.y -= static_cast<int>(extents[2]);
        rect.width = attributes.width + static_cast<int>(extents[0] + extents[1]);
        rect.height = attributes.height + static_cast<int>(extents[2] + extents[3]);
    }
    if (data)
        XFree(data);
    return rect;
}

// Announces decorations of a wrong size for the frame, as some window managers do. Waits until the toolkit knows this
// size.
void TellOtherDecorations(wxFrame& frame)
{
    GdkWindow* const window = gtk_widget_get_window(frame.GetHandle());
    Display* const display = GDK_WINDOW_XDISPLAY(window);
    // Until XUngrabServer(), the X server serves no other program, so the window manager cannot correct the sizes.
    XGrabServer(display);
    const long extents[] = {3, 4, 30, 40};
    XChangeProperty(display, GDK_WINDOW_XID(window), XInternAtom(display, "_NET_FRAME_EXTENTS", False), XA_CARDINAL, 32,
                    PropModeReplace, reinterpret_cast<const unsigned char*>(extents), 4);
    const wxStopWatch watch;
    while (frame.GetSize() - frame.GetClientSize() != wxSize(7, 70) && watch.Time() < Patience() * kLongest)
        gtk_main_iteration_do(FALSE);
    XUngrabServer(display);
    XFlush(display);
}

class ProbeApp : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("first-frame");
        if (argc < 3)
            return false;
        const wxString kind = argv[1];
        const long style =
            kind == "fixed" ? wxDEFAULT_FRAME_STYLE & ~(wxRESIZE_BORDER | wxMAXIMIZE_BOX) : wxDEFAULT_FRAME_STYLE;
        m_frame = new wxFrame(nullptr, wxID_ANY, "first", wxDefaultPosition, wxDefaultSize, style);
        if (kind == "menu") {
            auto* menu = new wxMenu;
            menu->Append(wxID_EXIT);
            auto* bar = new wxMenuBar;
            bar->Append(menu, "&File");
            m_frame->SetMenuBar(bar);
            m_frame->CreateStatusBar();
            new wxTextCtrl(m_frame, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE);
        }
        m_isDragged = kind == "dragged";
        m_isToBeSeenMaximized = kind == "maximized" || m_isDragged;
        m_isPersistent = kind == "persistent" || m_isToBeSeenMaximized;
        m_stores = argc > 3;
        if (m_isPersistent) {
            wxStorePersistenceManager::Install();
            wxPersistentRegisterAndRestore(m_frame, "Main");
        }
        if (m_stores)
            m_frame->SetSize(Wanted(argv[3]));
        else if (m_isPersistent) {
            m_expected = PersistentGeometry();
            m_isToBeSeenMaximized = CLocalRegStore::GetString(kPersistentFrame, L"Maximized", L"") == L"1";
        } else {
            wx_window_state::LoadState(m_frame, L"Main");
            const std::wstring stored = CLocalRegStore::GetString(L"wxWindowState", L"Main", L"");
            m_expected = wxString(stored).utf8_string();
        }
        m_frame->Show();
        if (kind == "corrected" && !m_stores)
            TellOtherDecorations(*m_frame);
        m_timer.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Look(); });
        m_timer.Start(kPause);
        return true;
    }

private:
    static std::string PersistentGeometry()
    {
        wxString text;
        for (const wchar_t* const key : {L"x", L"y", L"w", L"h"})
            text << (text.empty() ? "" : ";") << CLocalRegStore::GetString(kPersistentFrame, key, L"none");
        return text.utf8_string();
    }

    wxRect Wanted(const wxString& text)
    {
        const wxRect area = wxDisplay(0U).GetClientArea();
        m_wanted = wxRect(area.GetPosition(), wxSize(500, 340));
        if (text == "last-corner")
            m_wanted.Offset(area.width - m_wanted.width, area.height - m_wanted.height);
        else if (text != "corner")
            wxSscanf(text, "%d;%d;%d;%d", &m_wanted.x, &m_wanted.y, &m_wanted.width, &m_wanted.height);
        return m_wanted;
    }

    void Look()
    {
        if (m_isDragged && !m_isToBeSeenMaximized && !m_frame->IsMaximized() && wxGetMouseState().LeftIsDown())
            Xdotool({"mouseup", "1"});
        const wxRect now = OnScreen(*m_frame);
        // While the frame is maximised, ignore the toolkit's rectangle: its position may be wrong.
        const bool isTold = m_frame->IsMaximized() || now == m_frame->GetScreenRect();
        m_same = now == m_last && !now.IsEmpty() && isTold ? m_same + 1 : 0;
        m_last = now;
        const bool isLate = m_watch.Time() > Patience() * kLongest;
        if (m_same < kTimesTheSame && !isLate)
            return;
        if (!isLate && !(m_stores ? IsReadyToStore(now) : IsBack(now)))
            return;
        if (m_stores && !m_isPersistent)
            wx_window_state::SaveState(m_frame, L"Main");
        std::printf("%s\n", Text(m_stores && m_frame->IsMaximized() ? m_wanted : now).c_str());
        m_timer.Stop();
        m_frame->Close(true);
    }

    bool IsReadyToStore(const wxRect& now)
    {
        if (m_frame->IsMaximized())
            return true;
        if (now == m_wanted && !m_isToBeSeenMaximized)
            return true;
        // Set the geometry again if the frame does not have it yet. Maximise the frame only when it has this geometry.
        if (now == m_wanted)
            m_frame->Maximize();
        else
            m_frame->SetSize(m_wanted);
        m_same = 0;
        return false;
    }

    bool IsBack(const wxRect& now)
    {
        if (m_isToBeSeenMaximized) {
            if (m_frame->IsMaximized()) {
                m_isToBeSeenMaximized = false;
                if (m_isDragged)
                    Xdotool({"mousedown", "1"});
                m_frame->Maximize(false);
                m_same = 0;
            }
            return false;
        }
        if (m_isDragged)
            return !m_frame->IsMaximized() && wxString(m_expected).EndsWith(SizeText(now));
        return !m_frame->IsMaximized() && Text(now) == m_expected;
    }

    wxFrame* m_frame = nullptr;
    bool m_isPersistent = false;
    bool m_isDragged = false;
    bool m_isToBeSeenMaximized = false;
    bool m_stores = false;
    wxRect m_wanted;
    std::string m_expected;
    wxRect m_last;
    int m_same = 0;
    wxTimer m_timer;
    const wxStopWatch m_watch;
};

}  // namespace

wxIMPLEMENT_APP(ProbeApp);
