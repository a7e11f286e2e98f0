#include <fittings/numedit/number_ctrl.h>

#include <cstdlib>
#include <optional>
#include <utility>

#include <gtk/gtk.h>
#include <wx/uilocale.h>
#include <wx/utils.h>
#include <wx/weakref.h>

#include <fittings/numedit/decimal_validator.h>
#include <fittings/numedit/number_field.h>

using fittings::Decimal;
using fittings::NumberEntry;
using fittings::NumberField;

wxDEFINE_EVENT(wxEVT_NUMBER_CHANGED, wxCommandEvent);

wxIMPLEMENT_DYNAMIC_CLASS(wxNumberCtrl, wxTextCtrl);

wxBEGIN_EVENT_TABLE(wxNumberCtrl, wxTextCtrl)
    EVT_SET_FOCUS(wxNumberCtrl::OnSetFocus)
    EVT_KILL_FOCUS(wxNumberCtrl::OnKillFocus)
    EVT_CHAR(wxNumberCtrl::OnChar)
    EVT_MOUSEWHEEL(wxNumberCtrl::OnWheel)
    EVT_TEXT_PASTE(wxID_ANY, wxNumberCtrl::OnPaste)
wxEND_EVENT_TABLE()

namespace {

// Returns the locale that the user has chosen for numbers.
wxUILocale NumbersLocale()
{
    for (const char* const name : {"LC_ALL", "LC_NUMERIC"}) {
        const char* const value = std::getenv(name);
        if (!value || *value == '\0')
            continue;
        const wxUILocale locale = wxUILocale::FromTag(value);
        if (locale.IsSupported())
            return locale;
    }
    return wxUILocale(wxUILocale::GetSystemLocaleId());
}

wchar_t FirstCharacter(const wxString& text)
{
    return text.empty() ? L'\0' : static_cast<wchar_t>(text[0].GetValue());
}

// Returns the insertion to make; nothing if the insertion is refused. If wxNumberCtrl::SetMaxLength() is the reason,
// sends wxEVT_TEXT_MAXLEN.
std::optional<NumberEntry::Insertion> Accepted(wxNumberCtrl& control, const NumberField& field,
                                               const NumberEntry::Insertion& insertion)
{
    std::optional<NumberEntry::Insertion> accepted = field.Accepted(insertion);
    if (!accepted || !field.IsTooLong(*accepted))
        return accepted;
    wxCommandEvent event(wxEVT_TEXT_MAXLEN, control.GetId());
    event.SetEventObject(&control);
    event.SetString(control.GetValue());
    wxPostEvent(&control, event);  // not sent at once: a handler may destroy the control
    return std::nullopt;
}

}  // namespace

wxNumberCtrl::wxNumberCtrl() = default;

wxNumberCtrl::wxNumberCtrl(wxWindow* parent, wxWindowID id, const CNumberFormat& format, const wxPoint& pos,
                           const wxSize& size, long style, const wxValidator& validator, const wxString& name)
{
    Create(parent, id, format, pos, size, style, validator, name);
}

wxNumberCtrl::~wxNumberCtrl() = default;

bool wxNumberCtrl::Create(wxWindow* parent, wxWindowID id, const CNumberFormat& format, const wxPoint& pos,
                          const wxSize& size, long style, const wxValidator& validator, const wxString& name)
{
    if (!wxTextCtrl::Create(parent, id, wxString(), pos, size, style & ~wxTE_MULTILINE, validator, name))
        return false;
    m_field = std::make_unique<NumberField>(format);
    // Convert to wxTextEntry*, which may be another address: the toolkit's signal handlers have a pointer of this type
    // as their user data.
    wxTextEntry* const toolkit = this;
    m_field->entry = std::make_unique<NumberEntry>(
        GTK_ENTRY(m_widget), toolkit,
        [this](const NumberEntry::Insertion& insertion) { return Accepted(*this, *m_field, insertion); },
        [] {
            if (!wxValidator::IsSilent())
                wxBell();
        });
    // Receive wheel events: by default, a text control leaves them to its parent.
    gtk_widget_add_events(m_widget, GDK_SCROLL_MASK);
    if (!GetValidator())
        SetValidator(wxDecimalValidator());
    return true;
}

CNumberFormat wxNumberCtrl::FromLocale(std::uint64_t decimals)
{
    const wxUILocale locale = NumbersLocale();
    CNumberFormat format(eLocaleFormat);
    const wchar_t point = FirstCharacter(locale.GetInfo(wxLOCALE_DECIMAL_POINT, wxLOCALE_CAT_NUMBER));
    format.m_chDecimalPoint = point ? point : L'.';
    format.m_chThousandsSep = FirstCharacter(locale.GetInfo(wxLOCALE_THOUSANDS_SEP, wxLOCALE_CAT_NUMBER));
    format.m_bGroupDigits = format.m_chThousandsSep != 0;
    format.m_bHasDecimals = format.m_bPadDecimals = true;
    format.m_nDecimals = decimals;
    return format;
}

CNumberFormat wxNumberCtrl::FromLocale()
{
    return FromLocale(2);
}

const CNumberFormat& wxNumberCtrl::GetFormat() const
{
    static const CNumberFormat none(eFixedFormat);
    wxCHECK_MSG(m_field, none, "call Create() first");
    return m_field->format;
}

void wxNumberCtrl::SetFormat(const CNumberFormat& format)
{
    wxCHECK_RET(m_field, "call Create() first");
    const wxString number = GetDecimal();
    const std::wstring plain = Plain();
    m_field->SetFormat(format);
    if (number.empty())
        SetPlain(plain, false);
    else
        SetDecimal(number);
}

// Sets no limit in GTK, because that limit would cut the formatted text too.
void wxNumberCtrl::SetMaxLength(unsigned long length)
{
    wxCHECK_RET(m_field, "call Create() first");
    m_field->mostCharacters = length;
}

bool wxNumberCtrl::Validate()
{
    return (!IsEnabled() || IsAcceptable()) && wxTextCtrl::Validate();
}

std::wstring wxNumberCtrl::Plain() const
{
    const std::wstring text = wxTextCtrl::DoGetValue().ToStdWstring();
    return !m_field->showsPlain && text == m_field->shown ? m_field->plain : m_field->Reading(text);
}

int wxNumberCtrl::GTKIMFilterKeypress(GdkEventKey* event) const
{
    if (!m_field)
        return wxTextCtrl::GTKIMFilterKeypress(event);
    return m_field->entry->Filter(event, [this, event] { return wxTextCtrl::GTKIMFilterKeypress(event); });
}

void wxNumberCtrl::GTKOnTextChanged()
{
    // A handler may destroy the window.
    const wxWeakRef<wxWindow> self(this);
    if (m_field)
        TellProblem();
    wxTextCtrl::GTKOnTextChanged();
    if (!self || !m_field)
        return;
    TellNumber();
    if (self && !m_field->showsPlain)
        SettleSoon();
}

void wxNumberCtrl::WriteText(const wxString& text)
{
    const NumberEntry::Free free(m_field ? m_field->entry.get() : nullptr);
    wxTextCtrl::WriteText(text);
}

void wxNumberCtrl::Remove(long from, long to)
{
    const NumberEntry::Free free(m_field ? m_field->entry.get() : nullptr);
    wxTextCtrl::Remove(from, to);
}

void wxNumberCtrl::DoSetValue(const wxString& value, int flags)
{
    if (!m_field) {
        wxTextCtrl::DoSetValue(value, flags);
        return;
    }
    const std::wstring plain = m_field->Reading(value.ToStdWstring());
    m_field->exact.clear();
    if (m_field->showsPlain)
        wxTextCtrl::DoSetValue(value, SetValue_NoEvent);
    else
        SetPlain(plain, false);
    m_field->told = fittings::NumberIn(plain, m_field->rules.point);
    TellProblem();
    if (flags & SetValue_SendEvent)
        SendTextUpdatedEvent(this);
}

void wxNumberCtrl::OnSetFocus(wxFocusEvent& event)
{
    event.Skip();
    if (!m_field || m_field->showsPlain)
        return;
    // On a click, GTK finds the place of the caret before it sets the focus, and moves the caret to this place
    // afterwards. Change the text only after GTK has moved the caret.
    GdkEvent* const present = gtk_get_current_event();
    const bool clicked = present && present->type == GDK_BUTTON_PRESS;
    if (present)
        gdk_event_free(present);
    m_field->awaitsPlain = clicked;
    if (clicked)
        SettleSoon();
    else
        ShowPlain();
}

void wxNumberCtrl::OnKillFocus(wxFocusEvent& event)
{
    event.Skip();
    if (!m_field || IsBeingDeleted())
        return;
    m_field->awaitsPlain = false;
    ShowFormatted();
}

void wxNumberCtrl::OnChar(wxKeyEvent& event)
{
    const int key = event.GetKeyCode();
    const bool up = key == WXK_UP || key == WXK_NUMPAD_UP;
    const bool down = key == WXK_DOWN || key == WXK_NUMPAD_DOWN;
    const bool pageUp = key == WXK_PAGEUP || key == WXK_NUMPAD_PAGEUP;
    const bool pageDown = key == WXK_PAGEDOWN || key == WXK_NUMPAD_PAGEDOWN;
    if (event.HasAnyModifiers() || event.ShiftDown() || !IsEditable() || !(up || down || pageUp || pageDown)) {
        event.Skip();
        return;
    }
    Step(up || pageUp, pageUp || pageDown);
}

void wxNumberCtrl::OnWheel(wxMouseEvent& event)
{
    if (event.GetWheelAxis() != wxMOUSE_WHEEL_VERTICAL || event.HasAnyModifiers() || event.ShiftDown() ||
        !IsEditable() || event.GetWheelDelta() <= 0) {
        event.Skip();
        return;
    }
    const wxWeakRef<wxWindow> self(this);
    if (!HasFocus())
        SetFocus();
    if (!self)
        return;
    m_field->wheel += event.GetWheelRotation();
    while (self && std::abs(m_field->wheel) >= event.GetWheelDelta()) {
        const bool up = m_field->wheel > 0;
        m_field->wheel -= up ? event.GetWheelDelta() : -event.GetWheelDelta();
        Step(up, false);
    }
}

void wxNumberCtrl::OnPaste(wxClipboardTextEvent& event)
{
    if (!IsEditable()) {
        event.Skip();
        return;
    }
    const wxWeakRef<wxWindow> self(this);
    char* const text = gtk_clipboard_wait_for_text(gtk_widget_get_clipboard(m_widget, GDK_SELECTION_CLIPBOARD));
    const std::wstring pasted = wxString::FromUTF8(text ? text : "").ToStdWstring();
    g_free(text);
    if (self && !pasted.empty())
        m_field->entry->Take(pasted);
}

// After the current event, shows the plain number if `awaitsPlain` is true. Otherwise formats the text, unless the
// field shows the plain number.
void wxNumberCtrl::SettleSoon()
{
    m_field->entry->Soon([this] {
        if (std::exchange(m_field->awaitsPlain, false))
            ShowPlain();
        else if (!m_field->showsPlain)
            ShowFormatted();
    });
}

void wxNumberCtrl::ShowPlain()
{
    const std::wstring shown = wxTextCtrl::DoGetValue().ToStdWstring();
    const std::wstring plain = Plain();
    std::pair<long, long> selection;
    GetSelection(&selection.first, &selection.second);
    if (shown == m_field->shown && selection == m_field->mapped)
        selection = m_field->selection;
    else
        selection = {m_field->Place(shown, plain, selection.first), m_field->Place(shown, plain, selection.second)};
    m_field->showsPlain = true;
    ShowText(plain, selection);
}

void wxNumberCtrl::ShowFormatted()
{
    const std::wstring before = wxTextCtrl::DoGetValue().ToStdWstring();
    m_field->plain = Plain();
    m_field->shown = m_field->Shown(m_field->plain);
    m_field->showsPlain = false;
    GetSelection(&m_field->selection.first, &m_field->selection.second);
    m_field->mapped = {m_field->Place(before, m_field->shown, m_field->selection.first),
                       m_field->Place(before, m_field->shown, m_field->selection.second)};
    ShowText(m_field->shown, m_field->mapped);
}

// Shows the number in another form. No event is sent, and the modified state does not change.
void wxNumberCtrl::ShowText(const std::wstring& text, const std::pair<long, long>& selection)
{
    if (wxTextCtrl::DoGetValue() == text)
        return;
    const bool modified = IsModified();
    wxTextCtrl::DoSetValue(text, SetValue_NoEvent);
    if (modified)
        MarkDirty();
    else
        DiscardEdits();
    SetSelection(selection.first, selection.second);
}

// Sets the plain text. If @a byUser is true, the user has made a step: then the function also sends events and marks
// the field as modified.
void wxNumberCtrl::SetPlain(const std::wstring& plain, bool byUser)
{
    const wxWeakRef<wxWindow> self(this);
    if (m_field->showsPlain) {
        const std::wstring before = wxTextCtrl::DoGetValue().ToStdWstring();
        const long place = byUser ? m_field->Place(before, plain, GetInsertionPoint()) : 0;
        if (before != plain) {
            wxTextCtrl::DoSetValue(plain, SetValue_NoEvent);
            SetInsertionPoint(place);
        }
    } else {
        m_field->plain = plain;
        m_field->shown = m_field->Shown(plain);
        wxTextCtrl::DoSetValue(m_field->shown, SetValue_NoEvent);
    }
    TellProblem();
    if (!byUser) {
        m_field->told = fittings::NumberIn(plain, m_field->rules.point);
        return;
    }
    MarkDirty();
    SendTextUpdatedEvent(this);
    if (self)
        TellNumber();
}

void wxNumberCtrl::Step(bool up, bool tenfold)
{
    if (const std::optional<std::wstring> stepped = m_field->Stepped(Plain(), up, tenfold))
        SetPlain(*stepped, true);
}

void wxNumberCtrl::TellNumber()
{
    const std::optional<Decimal> number = fittings::NumberIn(Plain(), m_field->rules.point);
    const bool same = number && m_field->told ? fittings::Compare(*number, *m_field->told) == 0
                                              : number.has_value() == m_field->told.has_value();
    if (same)
        return;
    m_field->told = number;
    wxCommandEvent event(wxEVT_NUMBER_CHANGED, GetId());
    event.SetEventObject(this);
    event.SetString(GetDecimal());
    HandleWindowEvent(event);
}

// Shows the problem of the text. If the text has no problem, stops showing an earlier problem.
void wxNumberCtrl::TellProblem()
{
    const wxString problem = GetProblem();
    if (problem == m_field->problem)
        return;
    GtkStyleContext* const style = gtk_widget_get_style_context(m_widget);
    AtkObject* const accessible = gtk_widget_get_accessible(m_widget);
    // The program may have changed the tooltip or the description. Remember the program's texts, to restore them when
    // the text of the field has no problem.
    const bool hasOurTip = !m_field->problem.empty() && GetToolTipText() == m_field->problem;
    const bool hasOurDescription = !m_field->problem.empty() && accessible->description &&
                                   wxString::FromUTF8(accessible->description) == m_field->problem;
    if (!hasOurTip)
        m_field->hostTip = GetToolTipText();
    if (!hasOurDescription)
        m_field->hostDescription = accessible->description ? accessible->description : "";
    m_field->problem = problem;
    if (problem.empty()) {
        gtk_style_context_remove_class(style, GTK_STYLE_CLASS_ERROR);
        if (hasOurTip && m_field->hostTip.empty())
            UnsetToolTip();
        else if (hasOurTip)
            SetToolTip(m_field->hostTip);
        if (hasOurDescription)
            atk_object_set_description(accessible, m_field->hostDescription.c_str());
        return;
    }
    gtk_style_context_add_class(style, GTK_STYLE_CLASS_ERROR);
    SetToolTip(problem);
    atk_object_set_description(accessible, problem.utf8_str());
}
