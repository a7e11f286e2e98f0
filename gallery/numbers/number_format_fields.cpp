#include <gallery/numbers/number_format_fields.h>

#include <algorithm>
#include <cstdint>

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <fittings/numedit/number_ctrl.h>

#include <gallery/pages/page_layout.h>
#include <gallery/pages/page_settings.h>
#include <gallery/pages/window_helpers.h>

namespace gallery {

wxDEFINE_EVENT(EVT_FORMAT_CHANGED, wxCommandEvent);

namespace {

constexpr int kLargestCount = 99;

struct Flag
{
    bool CNumberFormat::*field;
    const char* name;
    const char* label;
};

enum FlagIndex {
    AllowSign,
    AllowExponent,
    HasDecimals,
    HasMaxIntDigits,
    HasMin,
    HasMax,
    PadDecimals,
    RoundDecimals,
    GroupDigits,
    TrailingMinus
};

constexpr Flag kFlags[] = {
    {&CNumberFormat::m_bAllowSign, "AllowSign", "A &sign"},
    {&CNumberFormat::m_bAllowExponent, "AllowExponent", "An &exponent"},
    {&CNumberFormat::m_bHasDecimals, "HasDecimals", "&Decimals"},
    {&CNumberFormat::m_bHasMaxIntDigits, "HasMaxIntDigits", "&Integer digits"},
    {&CNumberFormat::m_bHasMin, "HasMin", "&Minimum"},
    {&CNumberFormat::m_bHasMax, "HasMax", "Maxim&um"},
    {&CNumberFormat::m_bPadDecimals, "PadDecimals", "Fill up with &zeros"},
    {&CNumberFormat::m_bRoundDecimals, "RoundDecimals", "&Round"},
    {&CNumberFormat::m_bGroupDigits, "GroupDigits", "&Group digits"},
    {&CNumberFormat::m_bTrailingMinus, "TrailingMinus", "Minus sign at the &back"},
};

struct Character
{
    wchar_t CNumberFormat::*field;
    const char* name;
    const char* label;
};

constexpr Character kCharacters[] = {
    {&CNumberFormat::m_chDecimalPoint, "DecimalPoint", "Decimal &point"},
    {&CNumberFormat::m_chThousandsSep, "ThousandsSep", "&Thousands separator"},
};

struct Count
{
    std::uint64_t CNumberFormat::*field;
    FlagIndex flag;
    const char* name;
};

constexpr Count kCounts[] = {
    {&CNumberFormat::m_nDecimals, HasDecimals, "Decimals"},
    {&CNumberFormat::m_nMaxIntDigits, HasMaxIntDigits, "MaxIntDigits"},
};

struct Bound
{
    double CNumberFormat::*field;
    FlagIndex flag;
    const char* name;
};

constexpr Bound kBounds[] = {
    {&CNumberFormat::m_dMin, HasMin, "Min"},
    {&CNumberFormat::m_dMax, HasMax, "Max"},
};

// Offer a choice and not a text field: a template is a printf format, and users must not enter printf formats.
const wchar_t* const kTemplates[] = {L"%s", L"%s kg", L"%s \u20AC", L"EUR %s", L"%s %%", L"about %s", L"(%s)"};

wchar_t CharacterIn(const wxTextCtrl& field)
{
    const wxString text = field.GetValue();
    return text.empty() ? L'\0' : static_cast<wchar_t>(text[0]);
}

wxString CodeOf(wchar_t character)
{
    return character == 0 ? wxString("none") : wxString::Format("U+%04X", static_cast<unsigned>(character));
}

// Returns a format for numbers of any size, for the fields that set the bounds.
CNumberFormat BoundFormat()
{
    CNumberFormat format(eLocaleFormat);
    format.m_bAllowExponent = true;
    format.m_bHasDecimals = true;
    format.m_nDecimals = 300;
    return format;
}

}  // namespace

NumberFormatFields::NumberFormatFields(wxWindow* parent) : wxPanel(parent)
{
    m_flags.resize(std::size(kFlags));
    // Tab follows the order in which the controls are made.
    wxSizer* presets = MakePresets();
    m_columns = new wxBoxSizer(wxHORIZONTAL);
    for (wxSizer* column : {MakeAccepted(), MakeLimits(), MakeShown()})
        m_columns->Add(column, wxSizerFlags().Border(wxRIGHT | wxBOTTOM, FromDIP(kColumnGap)));
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(presets, wxSizerFlags().Border(wxBOTTOM, FromDIP(12)));
    rows->Add(m_columns, wxSizerFlags().Expand());
    SetSizer(rows);

    LoadSettings();
    const auto onChange = [this](wxCommandEvent&) { OnChange(); };
    Bind(wxEVT_CHECKBOX, onChange);
    Bind(wxEVT_CHOICE, onChange);
    Bind(wxEVT_SPINCTRL, onChange);
    Bind(wxEVT_TEXT, onChange);
}

CNumberFormat NumberFormatFields::GetFormat() const
{
    CNumberFormat format(eFixedFormat);
    for (std::size_t i = 0; i < std::size(kFlags); ++i)
        format.*kFlags[i].field = m_flags[i]->GetValue();
    for (std::size_t i = 0; i < std::size(kCharacters); ++i)
        format.*kCharacters[i].field = CharacterIn(*m_characters[i]);
    for (std::size_t i = 0; i < std::size(kCounts); ++i)
        format.*kCounts[i].field = static_cast<std::uint64_t>(m_counts[i]->GetValue());
    for (std::size_t i = 0; i < std::size(kBounds); ++i)
        m_bounds[i]->GetNumber(&(format.*kBounds[i].field));  // the bound stays 0 if the text is not a number
    format.m_strTemplate = kTemplates[std::max(m_template->GetSelection(), 0)];
    return format;
}

void NumberFormatFields::SetFormat(const CNumberFormat& format)
{
    m_settingFormat = true;
    for (std::size_t i = 0; i < std::size(kFlags); ++i)
        m_flags[i]->SetValue(format.*kFlags[i].field);
    for (std::size_t i = 0; i < std::size(kCharacters); ++i) {
        const wchar_t character = format.*kCharacters[i].field;
        m_characters[i]->SetValue(character == 0 ? wxString() : wxString(character));
    }
    for (std::size_t i = 0; i < std::size(kCounts); ++i) {
        if (format.*kFlags[kCounts[i].flag].field)
            m_counts[i]->SetValue(static_cast<int>(std::min<std::uint64_t>(format.*kCounts[i].field, kLargestCount)));
    }
    for (std::size_t i = 0; i < std::size(kBounds); ++i) {
        if (format.*kFlags[kBounds[i].flag].field)
            m_bounds[i]->SetNumber(format.*kBounds[i].field);
    }
    const auto* found = std::find(std::begin(kTemplates), std::end(kTemplates), format.m_strTemplate);
    m_template->SetSelection(found == std::end(kTemplates) ? 0 : static_cast<int>(found - std::begin(kTemplates)));
    m_settingFormat = false;
    OnChange();
}

void NumberFormatFields::SaveSettings() const
{
    for (std::size_t i = 0; i < std::size(kFlags); ++i)
        kFormatSettings.SaveFlag(kFlags[i].name, m_flags[i]->GetValue());
    for (std::size_t i = 0; i < std::size(kCharacters); ++i)
        kFormatSettings.Save(kCharacters[i].name, CodeOf(CharacterIn(*m_characters[i])));
    for (std::size_t i = 0; i < std::size(kCounts); ++i)
        kFormatSettings.SaveNumber(kCounts[i].name, m_counts[i]->GetValue());
    for (std::size_t i = 0; i < std::size(kBounds); ++i)
        kFormatSettings.Save(kBounds[i].name, m_bounds[i]->GetDecimal());
    kFormatSettings.Save("Template", kTemplates[m_template->GetSelection()]);
}

void NumberFormatFields::Arrange(int width)
{
    ArrangeColumns(m_columns, width);
    InvalidateBestSize();
}

// Loads the format. A control whose stored value is missing or invalid shows its default. For a bound, the default is
// 0: the control is empty or shows "0".
void NumberFormatFields::LoadSettings()
{
    CNumberFormat format(eFixedFormat);
    for (const Flag& flag : kFlags)
        format.*flag.field = kFormatSettings.LoadFlag(flag.name, format.*flag.field);
    for (const Character& character : kCharacters) {
        const wxString text = kFormatSettings.Load(character.name);
        unsigned long code = 0;
        if (text == CodeOf(0))
            format.*character.field = L'\0';
        else if (text.StartsWith("U+") && text.Mid(2).ToULong(&code, 16) && code > 0 && code <= 0x10FFFF)
            format.*character.field = static_cast<wchar_t>(code);
    }
    format.m_strTemplate = kFormatSettings.Load("Template").wc_str();
    SetFormat(format);
    // Also load the limits whose boxes are not checked: SetFormat() does not change their controls.
    for (std::size_t i = 0; i < std::size(kCounts); ++i) {
        m_counts[i]->SetValue(kFormatSettings.LoadNumber(kCounts[i].name, 0, kLargestCount, m_counts[i]->GetValue()));
    }
    for (std::size_t i = 0; i < std::size(kBounds); ++i) {
        wxString text = kFormatSettings.Load(kBounds[i].name);
        text.Replace(",", ".");  // earlier versions stored the locale's point, and no groups
        m_bounds[i]->SetDecimal(text);
    }
}

wxSizer* NumberFormatFields::MakePresets()
{
    const auto button = [this](const wxString& label, const char* name, EGeneralFormat preset) {
        auto* made = new wxButton(this, wxID_ANY, label);
        made->SetName(name);
        made->Bind(wxEVT_BUTTON, [this, preset](wxCommandEvent&) { SetFormat(CNumberFormat(preset)); });
        return made;
    };
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(MakeHeading(this, "Format"), wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(kMargin)));
    buttons->Add(button("Like the l&ocale", "eLocaleFormat", eLocaleFormat),
                 wxSizerFlags().Border(wxRIGHT, FromDIP(kGap)));
    buttons->Add(button("Fi&xed", "eFixedFormat", eFixedFormat));
    return buttons;
}

wxSizer* NumberFormatFields::MakeAccepted()
{
    auto* rows = new wxBoxSizer(wxVERTICAL);
    const wxSizerFlags row = wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap));
    rows->Add(MakeHeading(this, "Accept"), row);
    rows->Add(MakeFlag(AllowSign), row);
    rows->Add(MakeFlag(AllowExponent), row);
    auto* grid = new wxFlexGridSizer(3, FromDIP(wxSize(kGap, kGap)));
    for (std::size_t i = 0; i < std::size(kCharacters); ++i)
        AddCharacter(grid, i);
    rows->Add(grid);
    rows->SetMinSize(FromDIP(wxSize(kColumnWidth, -1)));
    return rows;
}

wxSizer* NumberFormatFields::MakeLimits()
{
    auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(kGap, kGap)));
    grid->SetFlexibleDirection(wxHORIZONTAL);
    for (const Count& count : kCounts) {
        wxCheckBox* const flag = MakeFlag(count.flag);
        grid->Add(flag, wxSizerFlags().CentreVertical());
        auto* field =
            new wxSpinCtrl(this, wxID_ANY, "0", wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 0, kLargestCount);
        field->SetName(count.name);
        SetAccessibleName(field, flag->GetLabelText());
        m_counts.push_back(field);
        grid->Add(field, wxSizerFlags().Expand());
    }
    for (const Bound& bound : kBounds) {
        wxCheckBox* const flag = MakeFlag(bound.flag);
        grid->Add(flag, wxSizerFlags().CentreVertical());
        auto* field = new wxNumberCtrl(this, wxID_ANY, BoundFormat(), wxDefaultPosition, FromDIP(wxSize(130, -1)));
        field->SetName(bound.name);
        SetAccessibleName(field, flag->GetLabelText());
        m_bounds.push_back(field);
        grid->Add(field, wxSizerFlags().Expand());
    }
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(MakeHeading(this, "Limit"), wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap)));
    rows->Add(grid);
    return rows;
}

wxSizer* NumberFormatFields::MakeShown()
{
    auto* rows = new wxBoxSizer(wxVERTICAL);
    const wxSizerFlags row = wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap));
    rows->Add(MakeHeading(this, "Show"), row);
    for (const FlagIndex flag : {PadDecimals, RoundDecimals, GroupDigits, TrailingMinus})
        rows->Add(MakeFlag(flag), row);
    wxArrayString offered;
    for (const wchar_t* each : kTemplates)
        offered.push_back(each);
    auto* label = new wxStaticText(this, wxID_ANY, "Temp&late");
    m_template = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, offered);
    m_template->SetName("Template");
    auto* line = new wxBoxSizer(wxHORIZONTAL);
    line->Add(label, wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(kGap)));
    line->Add(m_template, wxSizerFlags().CentreVertical());
    rows->Add(line);
    return rows;
}

wxCheckBox* NumberFormatFields::MakeFlag(std::size_t index)
{
    auto* box = new wxCheckBox(this, wxID_ANY, kFlags[index].label);
    box->SetName(kFlags[index].name);
    m_flags[index] = box;
    return box;
}

// Adds a label, a field for one character, and the code of this character. Users need the code because many separators
// are blanks that look alike.
void NumberFormatFields::AddCharacter(wxSizer* grid, std::size_t index)
{
    auto* label = new wxStaticText(this, wxID_ANY, kCharacters[index].label);
    auto* field = new wxTextCtrl(this, wxID_ANY, "");
    field->SetName(kCharacters[index].name);
    field->SetMaxLength(1);
    field->SetInitialSize(field->GetSizeFromTextSize(field->GetTextExtent("MM")));
    auto* code = new wxStaticText(this, wxID_ANY, CodeOf(L'\U0010FFFF'));
    code->SetName(wxString(kCharacters[index].name) + "Code");
    code->SetMinSize(code->GetBestSize());
    grid->Add(label, wxSizerFlags().CentreVertical());
    grid->Add(field);
    grid->Add(code, wxSizerFlags().CentreVertical());
    m_characters.push_back(field);
    m_codes.push_back(code);
}

// Enables or disables the control of each limit, shows the codes of the characters, and sends EVT_FORMAT_CHANGED.
void NumberFormatFields::OnChange()
{
    if (m_settingFormat)
        return;
    for (std::size_t i = 0; i < std::size(kCounts); ++i)
        m_counts[i]->Enable(m_flags[kCounts[i].flag]->GetValue());
    for (std::size_t i = 0; i < std::size(kBounds); ++i)
        m_bounds[i]->Enable(m_flags[kBounds[i].flag]->GetValue());
    for (std::size_t i = 0; i < std::size(kCharacters); ++i)
        m_codes[i]->SetLabelText(CodeOf(CharacterIn(*m_characters[i])));
    TellChange(*this, EVT_FORMAT_CHANGED);
}

}  // namespace gallery
