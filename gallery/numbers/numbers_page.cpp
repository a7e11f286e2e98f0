#include <gallery/numbers/numbers_page.h>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <fittings/numedit/num_validator.h>
#include <fittings/numedit/number_ctrl.h>
#include <fittings/numedit/number_edit_utils.h>

#include <gallery/numbers/number_format_fields.h>
#include <gallery/pages/page_layout.h>
#include <gallery/pages/page_settings.h>
#include <gallery/pages/readable_colour.h>

namespace gallery {

namespace {

constexpr const char* kFirstNumber = "1234.5";

enum Result { WhileTyping, Whole, Trimmed, Grouped, Shown };

constexpr const char* kResultNames[] = {"ValidateInput", "ValidateString", "CutZeros", "GroupDigits",
                                        "FormatControlText"};

void ShowVerdict(wxStaticText* label, bool accepted, const wxString& text)
{
    const wxColour green(0x26, 0xA2, 0x69);
    const wxColour red(0xE0, 0x1B, 0x24);
    label->SetForegroundColour(ReadableOn(label->GetBackgroundColour(), accepted ? green : red));
    label->SetLabelText((accepted ? L"\u2713 " : L"\u2717 ") + text);
}

void ShowVerdict(wxStaticText* label, bool accepted)
{
    ShowVerdict(label, accepted, accepted ? "accepted" : "refused");
}

}  // namespace

NumbersPage::NumbersPage(wxWindow* parent) : wxScrolledWindow(parent)
{
    SetName("Numbers");
    m_columns = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags block = wxSizerFlags().Border(wxRIGHT | wxBOTTOM, FromDIP(kColumnGap));
    m_columns->Add(MakeTrial(), block);
    m_columns->Add(MakeResults(), block);
    wxSizer* control = MakeControl();
    m_fields = new NumberFormatFields(this);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(m_columns, wxSizerFlags().Expand().Border(wxLEFT | wxTOP, FromDIP(kMargin)));
    rows->Add(control, wxSizerFlags().Expand().Border(wxLEFT, FromDIP(kMargin)));
    rows->Add(m_fields, wxSizerFlags().Expand().Border(wxLEFT, FromDIP(kMargin)));
    SetSizer(rows);
    SetScrollRate(0, FromDIP(10));
    KeepFocusInSight(this);

    LoadSettings();
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        Arrange();
        event.Skip();
    });
    m_fields->Bind(EVT_FORMAT_CHANGED, [this](wxCommandEvent&) { UseFormat(); });
    m_validates->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { UseFormat(); });
    m_number->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { ShowResults(); });
    // Bind wxEVT_TEXT too, because wxEVT_NUMBER_CHANGED is not sent if neither the old nor the new text is a number.
    for (const auto& event : {wxEVT_NUMBER_CHANGED, wxEVT_TEXT})
        m_control->Bind(event, [this](wxCommandEvent&) { ShowControlNumber(); });
    m_keep->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnKeep(); });
    m_bringBack->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnBringBack(); });
    UseFormat();
}

void NumbersPage::SaveSettings() const
{
    m_fields->SaveSettings();
    kNumberSettings.Save("Typed", m_number->GetValue());
    kNumberSettings.Save("Kept", m_kept);
    kNumberSettings.Save("InControl", m_control->GetDecimal());
    kNumberSettings.SaveFlag("Validates", m_validates->GetValue());
}

void NumbersPage::LoadSettings()
{
    // In the first session, nothing is stored yet. Look for "Validates": SaveSettings() always stores it as "0" or "1",
    // but a number can be stored as an empty text.
    const bool isFirstSession = kNumberSettings.Load("Validates").empty();
    m_number->ChangeValue(isFirstSession ? wxString(kFirstNumber) : kNumberSettings.Load("Typed"));
    m_control->SetDecimal(isFirstSession ? wxString(kFirstNumber) : kNumberSettings.Load("InControl"));
    m_kept = kNumberSettings.Load("Kept");
    m_keptText->SetLabelText(m_kept.empty() ? wxString("Nothing kept yet.") : "Kept: " + m_kept);
    m_validates->SetValue(kNumberSettings.LoadFlag("Validates", true));
}

// Makes the first column: the field for the number, its check box and buttons, and the text with the kept number.
wxSizer* NumbersPage::MakeTrial()
{
    wxStaticText* label = MakeHeading(this, "&Number");
    m_number = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(kColumnWidth, -1)));
    m_number->SetName("Number");
    m_number->SetFont(m_number->GetFont().Scaled(1.4F));
    m_validates = new wxCheckBox(this, wxID_ANY, "Refuse &what is no number");
    m_validates->SetName("Validates");
    m_validates->SetToolTip("Whether the field has a wxNumValidator");
    m_keep = new wxButton(this, wxID_ANY, "&Check and keep");
    m_keep->SetName("Keep");
    m_keep->SetToolTip("Validate(), then TransferFromWindow()");
    m_bringBack = new wxButton(this, wxID_ANY, "Bring bac&k");
    m_bringBack->SetName("BringBack");
    m_bringBack->SetToolTip("TransferToWindow()");
    m_keptText = new wxStaticText(this, wxID_ANY, "");
    m_keptText->SetName("Kept");

    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(m_keep, wxSizerFlags().Border(wxRIGHT, FromDIP(kGap)));
    buttons->Add(m_bringBack);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    const wxSizerFlags row = wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap));
    rows->Add(label, row);
    rows->Add(m_number, row);
    rows->Add(m_validates, row);
    rows->Add(buttons, row);
    rows->Add(m_keptText);
    return rows;
}

// Makes a row for the result of each function in kResultNames.
wxSizer* NumbersPage::MakeResults()
{
    auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(18, 8)));
    for (const char* name : kResultNames) {
        grid->Add(new wxStaticText(this, wxID_ANY, name), wxSizerFlags().CentreVertical());
        auto* result = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(kColumnWidth, -1)),
                                        wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
        result->SetName(wxString(name) + "Result");
        BeginAtTheStart(result);
        m_results.push_back(result);
        grid->Add(result, wxSizerFlags().CentreVertical());
    }
    m_results[Shown]->SetFont(m_results[Shown]->GetFont().Bold().Scaled(1.4F));
    m_results[Shown]->SetMinSize(wxSize(FromDIP(kColumnWidth), m_results[Shown]->GetCharHeight()));
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(MakeHeading(this, "What the format makes of it"), wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap)));
    rows->Add(grid);
    return rows;
}

// Makes the wxNumberCtrl, and the line that shows its number.
wxSizer* NumbersPage::MakeControl()
{
    wxStaticText* label = MakeHeading(this, "In &a wxNumberCtrl");
    m_control = new wxNumberCtrl(this, wxID_ANY, CNumberFormat(eFixedFormat), wxDefaultPosition,
                                 FromDIP(wxSize(kColumnWidth, -1)));
    m_control->SetName("NumberCtrl");
    m_control->SetFont(m_control->GetFont().Scaled(1.4F));
    m_controlNumber = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, FromDIP(wxSize(kColumnWidth, -1)),
                                       wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
    m_controlNumber->SetName("NumberCtrlNumber");
    BeginAtTheStart(m_controlNumber);

    m_controlColumns = new wxBoxSizer(wxHORIZONTAL);
    m_controlColumns->Add(m_control, wxSizerFlags().Border(wxRIGHT, FromDIP(kColumnGap)));
    m_controlColumns->Add(m_controlNumber, wxSizerFlags(1).CentreVertical());
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(label, wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap)));
    rows->Add(m_controlColumns, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(kColumnGap)));
    return rows;
}

// Arranges the page for its width. The page scrolls when its contents are higher than the window.
void NumbersPage::Arrange()
{
    const int width = GetClientSize().x - FromDIP(kMargin);
    ArrangeColumns(m_columns, width);
    ArrangeColumns(m_controlColumns, width);
    m_fields->Arrange(width);
    // Set the virtual height of the page first: the layout that follows would otherwise reduce the height of the fields
    // until all of them fit into the window.
    FitInside();
}

// Sets or removes the validator of the number's field, sets the current format in the control, and shows the results.
void NumbersPage::UseFormat()
{
    const CNumberFormat format = m_fields->GetFormat();
    const bool validates = m_validates->GetValue();
    if (validates)
        m_number->SetValidator(wxNumValidator(format, &m_kept));
    else
        m_number->SetValidator(wxDefaultValidator);
    m_keep->Enable(validates);
    m_bringBack->Enable(validates);
    ShowResults();
    // Keep the control's format if the new one has no decimal point: the user may be replacing the point. A number such
    // as 1.5 would be invalid without a point.
    if (format.m_chDecimalPoint != 0)
        m_control->SetFormat(format);
    ShowControlNumber();
}

void NumbersPage::ShowResults()
{
    const CNumberFormat format = m_fields->GetFormat();
    const wxString typed = m_number->GetValue();
    ShowVerdict(m_results[WhileTyping], CNumberEditUtils::ValidateInput(typed.wc_str(), format));
    ShowVerdict(m_results[Whole], CNumberEditUtils::ValidateString(typed.wc_str(), format));
    wxString text = typed;
    CNumberEditUtils::CutZeros(text, format);
    m_results[Trimmed]->SetLabelText(text);
    text = typed;
    CNumberEditUtils::GroupDigits(text, format);
    m_results[Grouped]->SetLabelText(text);
    m_results[Shown]->SetLabelText(CNumberEditUtils::FormatControlText(typed.wc_str(), format));
}

void NumbersPage::ShowControlNumber()
{
    const wxString problem = m_control->GetProblem();
    const wxString number = m_control->GetDecimal();
    if (problem.empty() && number.empty())
        m_controlNumber->SetLabelText("");
    else
        ShowVerdict(m_controlNumber, problem.empty(), problem.empty() ? number : problem);
}

// Validates and transfers the number, as a dialog does on OK.
void NumbersPage::OnKeep()
{
    wxValidator* validator = m_number->GetValidator();
    if (validator->Validate(this) && validator->TransferFromWindow())
        m_keptText->SetLabelText("Kept: " + m_kept);
    else
        m_keptText->SetLabelText("Not accepted, so not kept.");
}

void NumbersPage::OnBringBack()
{
    m_number->GetValidator()->TransferToWindow();
    m_number->SetFocus();
}

}  // namespace gallery
