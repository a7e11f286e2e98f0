#include <fittings/colour/colour_combo.h>

#include <cstdint>

#include <cairo.h>
#include <wx/app.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/renderer.h>
#include <wx/textctrl.h>

#include <fittings/base/accessible.h>
#include <fittings/colour/click_watch.h>
#include <fittings/colour/colour_popup.h>
#include <fittings/colour/colour_text.h>
#include <fittings/colour/direct_drawing.h>
#include <fittings/colour/outline_window.h>

namespace {

constexpr int kTick = 10;
constexpr int kSteps = 256;
constexpr int kFocusInset = 3;

wxBitmap CopyOfScreen(const wxRect& rect)
{
    wxScreenDC screen;
    // Tell Cairo that the screen has changed. Cairo does not notice what other programs draw: it would copy old pixels.
    if (void* const context = screen.GetImpl()->GetCairoContext())
        cairo_surface_mark_dirty(cairo_get_target(static_cast<cairo_t*>(context)));
    wxBitmap bitmap(rect.GetSize());
    wxMemoryDC copy(bitmap);
    copy.Blit(wxPoint(0, 0), rect.GetSize(), &screen, rect.GetPosition(), wxCOPY);
    copy.SelectObject(wxNullBitmap);
    return bitmap;
}

// Returns whether the window or one of its ancestors is being deleted or is scheduled for deletion.
bool IsScheduledForDeletion(wxWindow* window)
{
    return window && (window->IsBeingDeleted() || wxTheApp->IsScheduledForDestruction(window) ||
                      IsScheduledForDeletion(window->GetParent()));
}

}  // namespace

// The table has no entries, but the tables of derived classes refer to it.
wxBEGIN_EVENT_TABLE(wxColourCombo, wxComboCtrl)
wxEND_EVENT_TABLE()

wxColourCombo::wxColourCombo() : m_clicks(std::make_unique<fittings::ClickWatch>(*this, [this] { DismissOpening(); }))
{
    // Drop keys during the animation: Escape and Enter must not close the dialog that contains the control.
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) { event.Skip(!m_animTimer.IsRunning()); });
}

wxColourCombo::wxColourCombo(wxWindow* parent, wxWindowID id, const wxColour& colour, const wxPoint& pos,
                             const wxSize& size, long style, const wxValidator& validator, const wxString& name)
    : wxColourCombo()
{
    CreateWithColour(parent, id, colour, pos, size, style, validator, name);
}

bool wxColourCombo::CreateWithColour(wxWindow* parent, wxWindowID id, const wxColour& colour, const wxPoint& pos,
                                     const wxSize& size, long style, const wxValidator& validator, const wxString& name)
{
    if (!wxComboCtrl::Create(parent, id, "", pos, size, style, validator, name))
        return false;
    SetPopupControl(new wxColourPopup);
    SetColour(colour.IsOk() ? colour : *wxBLACK);
    return true;
}

wxColourCombo::~wxColourCombo()
{
    // A popup that was closed during the animation has not reported the end of the selection. Set the state Animating,
    // so that HidePopup() reports the end.
    if (m_animTimer.IsRunning() && IsPopupWindowState(Hidden))
        m_popupWinState = Animating;
    m_animTimer.Stop();
    m_clicks->Stop();
    // Closing the popup calls the listener, which may call Destroy(). Announce the destruction first: Destroy() then
    // finds that the control is already being deleted, and does nothing. Do not leave this to the destructor of the
    // base class, because the override of Destroy() no longer applies there.
    SendDestroyEvent();
    wxColourCombo::HidePopup(true);
}

wxColourPopup* wxColourCombo::GetPopup() const
{
    return dynamic_cast<wxColourPopup*>(m_popupInterface);
}

wxColour wxColourCombo::GetColour() const
{
    const wxColourPopup* const popup = GetPopup();
    return popup ? popup->GetInitialColour() : wxColour();
}

bool wxColourCombo::SetColour(const wxColour& colour)
{
    wxColourPopup* const popup = GetPopup();
    return popup && popup->SetColour(colour);
}

bool wxColourCombo::SetAutomaticColour(const wxColour& colour)
{
    wxColourPopup* const popup = GetPopup();
    if (!popup || !colour.IsOk())
        return false;
    popup->SetDefaultColour(colour);
    return popup->SetColour(wxColour(popup->GetInitialColour()));
}

bool wxColourCombo::Destroy()
{
    if (!IsBeingDeleted()) {
        Hide();
        wxTheApp->ScheduleForDestruction(this);
    }
    return true;
}

void wxColourCombo::Popup()
{
    if (!m_animTimer.IsRunning())
        wxComboCtrl::Popup();
}

void wxColourCombo::ShowPopup()
{
    if (!GetPopupControl() || m_animTimer.IsRunning())
        return;
    // Store the typed text in m_valueString. While the popup is open, SetValue() passes a value to the popup only if
    // the value differs from m_valueString. Without this line, the popup would not receive the value from before the
    // typing if the host sets it again.
    m_valueString = GetValue();
    wxComboCtrl::ShowPopup();
}

void wxColourCombo::HidePopup(bool generateEvent)
{
    // During the animation, end only the animation: the next step finds the state Hidden and shows the popup. The popup
    // reports the end of the selection when it is closed later.
    if (m_animTimer.IsRunning() && !IsScheduledForDeletion(this))
        m_popupWinState = Hidden;
    else
        wxComboCtrl::HidePopup(generateEvent);
}

void wxColourCombo::DoSetPopupControl(wxComboPopup* popup)
{
    if (m_animTimer.IsRunning())
        wxComboCtrl::HidePopup(false);
    wxComboCtrl::DoSetPopupControl(popup);
}

bool wxColourCombo::IsClientAreaChild(const wxWindow* child) const
{
    return !child->IsTopLevel() && wxComboCtrl::IsClientAreaChild(child);
}

void wxColourCombo::DrawButton(wxDC& dc, const wxRect& rect, int flags)
{
    wxComboCtrl::DrawButton(dc, rect, flags);
    if (ShouldDrawFocus())
        wxRendererNative::Get().DrawFocusRect(this, dc, wxRect(rect).Deflate(kFocusInset));
}

void wxColourCombo::OnInternalIdle()
{
    wxComboCtrl::OnInternalIdle();
    const wxString label = GetLabelText();
    const wxColourPopup* const colours = GetPopup();
    // The focus stays on this control while the popup is open, so describe the hot cell here.
    fittings::Describe(*this, fittings::AccessibleRole::ComboBox, label,
                       colours ? fittings::SpokenText(*colours) : GetValue());
    wxTextCtrl* const text = GetTextCtrl();
    if (!text)
        return;
    if (!label.empty())
        fittings::Describe(*text, fittings::AccessibleRole::Text, label, "");
    fittings::LabelPart(*this, *text);
}

bool wxColourCombo::AnimateShow(const wxRect& rect, int flags)
{
    m_animStart = wxGetLocalTimeMillis();
    m_animFlags = flags;
    m_animRect = rect;
    if (rect.IsEmpty() || !fittings::CanDrawDirectly())
        return true;
    m_animBitmap = CopyOfScreen(rect);
    if (!m_outline)
        m_outline = new fittings::OutlineWindow(this);
    m_animTimer.SetOwner(this, wxID_ANY);
    m_animTimer.Start(kTick, wxTIMER_CONTINUOUS);
    m_clicks->Start();
    wxTimerEvent firstStep(m_animTimer);
    OnTimerEvent(firstStep);
    return false;
}

void wxColourCombo::OnTimerEvent(wxTimerEvent& /*event*/)
{
    wxComboPopup* const popup = GetPopupControl();
    if (!popup) {
        m_animTimer.Stop();
        m_clicks->Stop();
        return;
    }
    const wxLongLong now = wxGetLocalTimeMillis();
    auto elapsed = static_cast<std::int32_t>((now - m_animStart).GetValue());
    // If the clock was set back, start again. Otherwise the animation would wait until the clock reaches the old time.
    if (elapsed < 0) {
        m_animStart = now;
        elapsed = 0;
    }
    if (!IsPopupWindowState(Hidden) && elapsed < m_animDuration)
        DrawStep(elapsed);
    else
        EndAnimation(*popup->GetControl());
}

// Runs before all handlers: a host may bind a handler for its own timers to the control and not skip the event.
bool wxColourCombo::TryBefore(wxEvent& event)
{
    auto* const tick = dynamic_cast<wxTimerEvent*>(&event);
    if (tick && &tick->GetTimer() == &m_animTimer)
        OnTimerEvent(*tick);
    return wxComboCtrl::TryBefore(event);
}

wxRect wxColourCombo::OutlineAt(int elapsed) const
{
    const int step = static_cast<int>(std::int64_t{elapsed} * kSteps / m_animDuration);
    const int width = step * m_animRect.width / kSteps;
    const double part = m_animRect.width > 0 ? static_cast<double>(width) / m_animRect.width : 0;
    const int height = static_cast<int>(m_animRect.height * part);
    const wxPoint centre(m_animRect.x + m_animRect.width / 2, m_animRect.y + m_animRect.height / 2);
    return {centre.x - width / 2, centre.y - height / 2, width, height};
}

void wxColourCombo::DrawStep(int elapsed)
{
    const wxRect outline = OutlineAt(elapsed);
    wxScreenDC screen;
    screen.SetPen(*wxBLACK_PEN);
    screen.SetBrush(*wxTRANSPARENT_BRUSH);
    if (m_animBitmap.IsOk())
        screen.DrawBitmap(m_animBitmap, m_animRect.GetPosition());
    screen.DrawRectangle(outline);
    // Also show the outline in a window of its own: all windows cover what is drawn directly on the screen.
    if (m_outline)
        m_outline->ShowOutline(m_animRect, outline);
}

void wxColourCombo::EndAnimation(wxWindow& popup)
{
    // Hide the outline before the background is drawn, so that no part of the outline remains.
    if (m_outline)
        m_outline->Hide();
    if (m_animBitmap.IsOk())
        wxScreenDC().DrawBitmap(m_animBitmap, m_animRect.GetPosition());
    popup.Move(0, 0);
    const bool animated = m_animTimer.IsRunning();
    m_animTimer.Stop();
    m_clicks->Stop();
    // If the popup was closed during the animation, show it anyway. The base class shows a popup only in the state
    // Animating.
    if (animated && IsPopupWindowState(Hidden)) {
        m_popupWinState = Animating;
        m_winPopup->Enable();
    }
    if (!IsScheduledForDeletion(this))
        DoShowPopup(m_animRect, m_animFlags);
}

// Dismisses a popup that is still opening, as a click dismisses an open popup. Shows the popup first.
void wxColourCombo::DismissOpening()
{
    EndAnimation(*GetPopupControl()->GetControl());
    if (!IsPopupShown())
        return;
    m_winPopup->Hide();
    OnPopupDismiss(true);
}
