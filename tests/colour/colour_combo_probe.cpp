// colour_combo_probe ENDS: shows a frame with a colour combo on the current display, for a test that sends input to the
// combo. Prints what happens, and exits after ENDS selections have ended.
//
//   display x11|wayland
//   combo X Y WIDTH HEIGHT     the combo's rectangle in the frame's client area
//   frame X Y WIDTH HEIGHT     the frame's client area on the screen; on Wayland, the position is not the real one
//   opens at once              ShowPopup() is about to show the popup, without an animation
//   opens later                the popup is about to be shown at the end of an animation
//   cell N X Y                 the middle of cell N, relative to the popup; printed when the popup is shown
//   popup X Y                  the popup is shown at this place on the screen, according to the toolkit
//   repaints X Y WIDTH HEIGHT  a part of the popup must be painted again
//   repaints all               the whole popup must be painted again
//   change|end|cancel #RRGGBB  a call of the popup's listener
//   over combo                 the pointer moves over the combo
//   dialog active|inactive FOCUS #RRGGBB
//                              the new state of the colour dialog, with its colour; FOCUS is the type of the focused
//                              widget, or "none"
//   value TEXT                 the combo's value at the end

#include <cstdio>
#include <cstdlib>
#include <string>

#include <gtk/gtk.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/utils.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>

#include <tests/support/gui.h>

namespace {

void Print(const std::string& line)
{
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

std::string Text(const wxRect& rect)
{
    return std::to_string(rect.x) + " " + std::to_string(rect.y) + " " + std::to_string(rect.width) + " " +
           std::to_string(rect.height);
}

std::string Text(const wxColour& colour)
{
    return colour.GetAsString(wxC2S_HTML_SYNTAX).ToStdString();
}

class Teller : public wxColorPopupListener
{
public:
    void OnColourSelChange(const wxColour& colour) override { Print("change " + Text(colour)); }
    void OnColourSelEnd(const wxColour& colour) override { End("end", colour); }
    void OnColourSelCancel(const wxColour& colour) override { End("cancel", colour); }

    int ends = 0;

private:
    void End(const std::string& call, const wxColour& colour)
    {
        Print(call + " " + Text(colour));
        ++ends;
    }
};

class TellingPopup : public wxColourPopup
{
public:
    void Refresh(bool erase = true, const wxRect* rect = nullptr) override
    {
        Print("repaints " + (rect ? Text(*rect) : "all"));
        wxColourPopup::Refresh(erase, rect);
    }
};

class TellingCombo : public wxColourCombo
{
public:
    void ShowPopup() override
    {
        m_inCall = true;
        wxColourCombo::ShowPopup();
        m_inCall = false;
    }

protected:
    void DoShowPopup(const wxRect& rect, int flags) override
    {
        Print(m_inCall ? "opens at once" : "opens later");
        wxColourCombo::DoShowPopup(rect, flags);
    }

private:
    bool m_inCall = false;
};

// Disable the warnings: GTK's colour selection is deprecated, but the toolkit's colour dialog uses it.
G_GNUC_BEGIN_IGNORE_DEPRECATIONS
std::string StateOf(GtkWindow* dialog)
{
    GdkRGBA rgba;
    gtk_color_selection_get_current_rgba(
        GTK_COLOR_SELECTION(gtk_color_selection_dialog_get_color_selection(GTK_COLOR_SELECTION_DIALOG(dialog))), &rgba);
    const auto byte = [](double part) { return static_cast<unsigned char>(part * 255 + 0.5); };
    GtkWidget* const focus = gtk_window_get_focus(dialog);
    return std::string(gtk_window_has_toplevel_focus(dialog) ? "active " : "inactive ") +
           (focus ? G_OBJECT_TYPE_NAME(focus) : "none") + " " +
           Text(wxColour(byte(rgba.red), byte(rgba.green), byte(rgba.blue)));
}

gboolean PrintDialog(void* lastPrinted)
{
    std::string& last = *static_cast<std::string*>(lastPrinted);
    GList* const windows = gtk_window_list_toplevels();
    for (GList* item = windows; item; item = item->next) {
        if (!GTK_IS_COLOR_SELECTION_DIALOG(item->data) || !gtk_widget_get_mapped(GTK_WIDGET(item->data)))
            continue;
        const std::string state = StateOf(GTK_WINDOW(item->data));
        if (state != last)
            Print("dialog " + state);
        last = state;
    }
    g_list_free(windows);
    return G_SOURCE_CONTINUE;
}
G_GNUC_END_IGNORE_DEPRECATIONS

class Probe : public wxApp
{
public:
    bool OnInit() override { return true; }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        Print(wxGetDisplayInfo().type == wxDisplayWayland ? "display wayland" : "display x11");
        auto* const frame = new wxFrame(nullptr, wxID_ANY, "colours", wxPoint(150, 120), wxSize(500, 400));
        auto* const panel = new wxPanel(frame);
        auto* const combo = new TellingCombo;
        combo->Create(panel, wxID_ANY, "", wxPoint(20, 60), wxSize(150, -1), wxCB_READONLY);
        auto* const popup = new TellingPopup;
        Teller teller;
        popup->SetColorListener(&teller);
        combo->SetPopupControl(popup);
        combo->Bind(wxEVT_MOTION, [](wxMouseEvent& event) {
            Print("over combo");
            event.Skip();
        });
        if (!ShowAndSettle(frame))
            return 1;
        combo->SetFocus();
        std::string lastState;
        const guint timer = g_timeout_add(10, PrintDialog, &lastState);
        Print("frame " + Text(wxRect(panel->ClientToScreen(wxPoint(0, 0)), panel->GetClientSize())));
        Print("combo " + Text(combo->GetRect()));
        const bool ended = Watch(*combo, *popup, teller);
        g_source_remove(timer);
        Print("value " + combo->GetValue().ToStdString());
        DestroyNow(frame);
        return ended ? 0 : 2;
    }

private:
    bool Watch(const wxColourCombo& combo, const wxColourPopup& popup, const Teller& teller) const
    {
        const int ends = std::atoi(argv[1].ToStdString().c_str());
        bool wasShown = false;
        const auto watch = [&] {
            const bool shown = combo.IsPopupShown();
            if (shown && !wasShown) {
                for (const int cell : {CELL_AUTOMATIC, CELL_MORE_COLOURS, 0, 20}) {
                    wxRect rect;
                    popup.GetCellRect(cell, rect);
                    Print("cell " + std::to_string(cell) + " " + std::to_string(rect.x + rect.width / 2) + " " +
                          std::to_string(rect.y + rect.height / 2));
                }
                const wxPoint at = popup.GetScreenPosition();
                Print("popup " + std::to_string(at.x) + " " + std::to_string(at.y));
            }
            wasShown = shown;
            return teller.ends >= ends && !shown;
        };
        return PumpUntil(watch, 60000);
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
