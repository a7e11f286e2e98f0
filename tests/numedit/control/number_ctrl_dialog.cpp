#include <tests/numedit/control/number_ctrl_dialog.h>

#include <gtest/gtest.h>

#include <wx/sizer.h>

#include <tests/support/gui.h>

NumberCtrlDialog::NumberCtrlDialog(const CNumberFormat& format, const wxValidator& validator, long style)
    : dialog(new wxDialog(nullptr, wxID_ANY, "Numbers", wxPoint(200, 200), wxDefaultSize,
                          wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER))
{
    first = new wxTextCtrl(dialog, wxID_ANY);
    number = new wxNumberCtrl(dialog, wxID_ANY, format, wxDefaultPosition, wxDefaultSize, style, validator);
    number->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ++textEvents; });
    number->Bind(wxEVT_NUMBER_CHANGED,
                 [this](wxCommandEvent& event) { numbers.push_back(event.GetString().utf8_string()); });
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(first, wxSizerFlags().Border());
    all->Add(number, wxSizerFlags().Border());
    all->Add(dialog->CreateButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Border());
    dialog->SetSizerAndFit(all);
    EXPECT_TRUE(ShowAndSettle(dialog));
    Enter();
    Restart("");
}

NumberCtrlDialog::~NumberCtrlDialog()
{
    DestroyNow(dialog);
}

void NumberCtrlDialog::Leave()
{
    first->SetFocus();
    ASSERT_TRUE(PumpUntil([this] { return first->HasFocus() && !number->HasFocus(); }));
    PumpPending();
}

void NumberCtrlDialog::Enter()
{
    number->SetFocus();
    ASSERT_TRUE(PumpUntil([this] { return number->HasFocus(); }));
    PumpPending();
}

void NumberCtrlDialog::Restart(const wxString& decimal)
{
    ASSERT_TRUE(number->SetDecimal(decimal));
    number->SetInsertionPointEnd();
    PumpPending();
    textEvents = 0;
    numbers.clear();
    ResetBells();
}

void NumberCtrlDialog::Paste(const wxString& text)
{
    SetClipboard(text);
    Press('V', wxMOD_CONTROL);
}

void NumberCtrlDialog::SelectInFirst(const wxString& text)
{
    first->SetValue(text);
    first->SetFocus();
    first->SelectAll();
    ASSERT_TRUE(PumpUntil([&] { return first->HasFocus() && first->GetStringSelection() == text; }));
    PumpPending();
}

wxPoint NumberCtrlDialog::Middle() const
{
    return number->ClientToScreen(wxPoint(number->GetSize().x / 2, number->GetSize().y / 2));
}

CNumberFormat Bounded(double min, double max)
{
    CNumberFormat format(eFixedFormat);
    format.m_bHasMin = format.m_bHasMax = true;
    format.m_dMin = min;
    format.m_dMax = max;
    return format;
}
