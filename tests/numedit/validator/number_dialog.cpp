#include <tests/numedit/validator/number_dialog.h>

#include <gtest/gtest.h>

#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <tests/support/gui.h>
#include <tests/support/process/child_process.h>

namespace {

int g_bells = 0;

}  // namespace

// Replaces the toolkit's function, also for calls from the library. Rings no bell, and counts the calls.
void wxBell()
{
    ++g_bells;
}

int Bells()
{
    return g_bells;
}

void SetClipboard(const wxString& text)
{
    const wxClipboardLocker clipboard;
    ASSERT_TRUE(wxTheClipboard->SetData(new wxTextDataObject(text)));
}

wxString Clipboard()
{
    const wxClipboardLocker clipboard;
    wxTextDataObject text;
    return wxTheClipboard->GetData(text) ? text.GetText() : wxString();
}

CNumberFormat FixedFormat(wchar_t point)
{
    CNumberFormat format(eFixedFormat);
    format.m_chDecimalPoint = point;
    return format;
}

int KeyLog::FilterEvent(wxEvent& event)
{
    const wxEventType type = event.GetEventType();
    if (type == wxEVT_KEY_DOWN) {
        const auto& key = static_cast<wxKeyEvent&>(event);
        down.push_back(key.GetKeyCode());
        m_held.insert(key.GetRawKeyFlags());
        m_wentDown = true;
    } else if (type == wxEVT_CHAR) {
        const auto& key = static_cast<wxKeyEvent&>(event);
        chars.push_back(key.GetKeyCode());
        characters += key.GetUnicodeKey();
    } else if (type == wxEVT_KEY_UP) {
        m_held.erase(static_cast<wxKeyEvent&>(event).GetRawKeyFlags());
    }
    return Event_Skip;
}

void KeyLog::WaitForKeys(const std::function<void()>& input)
{
    m_held.clear();
    m_wentDown = false;
    input();
    EXPECT_TRUE(PumpUntil([&] { return m_wentDown && m_held.empty(); })) << "a key is missing";
}

NumberDialog::NumberDialog(const CNumberFormat& format, wxString* value, long style)
    : dialog(new wxDialog(nullptr, wxID_ANY, "Numbers", wxPoint(200, 200), wxDefaultSize,
                          wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER))
{
    first = new wxTextCtrl(dialog, wxID_ANY);
    number = new wxTextCtrl(dialog, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, style,
                            wxNumValidator(format, value));
    number->Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
        ++textEvents;
        event.Skip();
    });
    auto* fields = new wxFlexGridSizer(2, wxSize(6, 6));
    fields->Add(new wxStaticText(dialog, wxID_ANY, "Name"), wxSizerFlags().CenterVertical());
    fields->Add(first);
    fields->Add(new wxStaticText(dialog, wxID_ANY, "Price"), wxSizerFlags().CenterVertical());
    fields->Add(number);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(fields, wxSizerFlags().Border());
    all->Add(dialog->CreateButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Border());
    dialog->SetSizerAndFit(all);
}

NumberDialog::~NumberDialog()
{
    DestroyNow(dialog);
}

void NumberDialog::Show(const wxString& text)
{
    ASSERT_TRUE(ShowAndSettle(dialog));
    Restart(text, static_cast<long>(text.length()));
}

void NumberDialog::Restart(const wxString& text, long caret)
{
    number->SetValue(text);
    number->SetFocus();
    ASSERT_TRUE(PumpUntil([this] { return number->HasFocus(); }));
    number->SetInsertionPoint(caret);
    PumpPending();
    textEvents = 0;
    ResetBells();
    keys.down.clear();
    keys.chars.clear();
    keys.characters.clear();
}

void NumberDialog::ExpectTextWithoutBell(const std::wstring& text) const
{
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(BellsRung(), 0);
}

void NumberDialog::ExpectTextAndBell(const std::wstring& text) const
{
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(BellsRung(), 1);
}

void KeysAndBells::Type(const std::string& characters)
{
    wxUIActionSimulator keyboard;
    for (const char character : characters) {
        keys.WaitForKeys([&] { EXPECT_TRUE(keyboard.Text(wxString(character))); });
    }
}

void KeysAndBells::Press(int keyCode, int modifiers)
{
    wxUIActionSimulator keyboard;
    keys.WaitForKeys([&] { EXPECT_TRUE(keyboard.Char(keyCode, modifiers)); });
}

void KeysAndBells::PressRaw(const std::string& key)
{
    keys.WaitForKeys([&] { RunChild({"xdotool", "key", key}); });
}
