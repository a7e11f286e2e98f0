#include <gallery/colours/colour_option_fields.h>

#include <algorithm>

#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <gallery/pages/page_layout.h>
#include <gallery/pages/page_settings.h>
#include <gallery/pages/window_helpers.h>

namespace gallery {

wxDEFINE_EVENT(EVT_COLOUR_OPTIONS_CHANGED, wxCommandEvent);

namespace {

constexpr int kFieldCharacters = 16;

// Makes the rows of several columns equally high, so that they line up.
void AlignRows(std::initializer_list<wxSizer*> grids)
{
    int height = 0;
    for (const wxSizer* grid : grids) {
        for (wxSizerItem* item : grid->GetChildren())
            height = std::max(height, item->CalcMin().y);
    }
    for (const wxSizer* grid : grids) {
        // Do not make labels higher: a label draws its text at its top, so the text would be too high in the row. The
        // sizer centres a label that keeps its own height.
        for (wxSizerItem* item : grid->GetChildren()) {
            if (!dynamic_cast<wxStaticText*>(item->GetWindow()))
                item->SetMinSize(item->GetMinSize().x, height);
        }
    }
}

}  // namespace

ColourOptionFields::ColourOptionFields(wxWindow* parent) : wxPanel(parent)
{
    const wxSizerFlags headingFlags = wxSizerFlags().Border(wxBOTTOM, FromDIP(kGap));
    m_columns = new wxBoxSizer(wxHORIZONTAL);
    // Tab follows the order in which the controls are made.
    wxSizer* const grids[] = {MakeBoxes(), MakeCells(), MakeBehaviour()};
    AlignRows({grids[0], grids[1], grids[2]});
    const char* const headings[] = {"Boxes", "Cells", "Combo"};
    for (std::size_t i = 0; i < std::size(grids); ++i) {
        auto* column = new wxBoxSizer(wxVERTICAL);
        column->Add(MakeHeading(this, headings[i]), headingFlags);
        column->Add(grids[i]);
        m_columns->Add(column, wxSizerFlags().Border(wxRIGHT | wxBOTTOM, FromDIP(kColumnGap)));
    }
    SetSizer(m_columns);

    LoadSettings();
    OnChange();
    const auto onChange = [this](wxCommandEvent&) { OnChange(); };
    Bind(wxEVT_CHECKBOX, onChange);
    Bind(wxEVT_SPINCTRL, onChange);
    for (wxTextCtrl* text : {m_automatic, m_more})
        text->Bind(wxEVT_TEXT, onChange);
}

ColourOptions ColourOptionFields::GetOptions() const
{
    ColourOptions options;
    options.hasAutomatic = m_hasAutomatic->GetValue();
    options.automatic = m_automatic->GetValue();
    options.hasMore = m_hasMore->GetValue();
    options.more = m_more->GetValue();
    options.defaultColour = m_default->GetColour();
    options.columns = m_columnCount->GetValue();
    options.cellSize = m_cellSize->GetValue();
    options.margin = m_margin->GetValue();
    options.readOnly = m_readOnly->GetValue();
    options.refresh = m_refresh->GetValue();
    options.centre = m_centre->GetValue();
    options.animate = m_animate->GetValue();
    options.duration = m_duration->GetValue();
    return options;
}

void ColourOptionFields::SaveSettings() const
{
    for (const wxCheckBox* box : {m_hasAutomatic, m_hasMore, m_readOnly, m_refresh, m_centre, m_animate})
        kColourSettings.SaveFlag(box->GetName(), box->GetValue());
    for (const wxSpinCtrl* field : {m_columnCount, m_cellSize, m_margin, m_duration})
        kColourSettings.SaveNumber(field->GetName(), field->GetValue());
    for (const wxTextCtrl* text : {m_automatic, m_more})
        kColourSettings.Save(text->GetName(), text->GetValue());
    kColourSettings.SaveColour(m_default->GetName(), m_default->GetColour());
}

void ColourOptionFields::Arrange(int width)
{
    ArrangeColumns(m_columns, width);
    InvalidateBestSize();
}

// Loads the options. An option whose stored value is missing or wrong keeps its default.
void ColourOptionFields::LoadSettings()
{
    for (wxCheckBox* box : {m_hasAutomatic, m_hasMore, m_readOnly, m_refresh, m_centre, m_animate})
        box->SetValue(kColourSettings.LoadFlag(box->GetName(), box->GetValue()));
    for (wxSpinCtrl* field : {m_columnCount, m_cellSize, m_margin, m_duration}) {
        field->SetValue(
            kColourSettings.LoadNumber(field->GetName(), field->GetMin(), field->GetMax(), field->GetValue()));
    }
    for (wxTextCtrl* text : {m_automatic, m_more})
        text->ChangeValue(kColourSettings.Load(text->GetName()));
    m_default->SetColour(kColourSettings.LoadColour(m_default->GetName(), m_default->GetColour()));
}

// Makes the controls for the two boxes, their texts and the default colour.
wxSizer* ColourOptionFields::MakeBoxes()
{
    const ColourOptions first;
    auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(kGap, kGap)));
    const auto makeText = [&](const char* name, const wxString& accessibleName) {
        auto* text =
            new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(kFieldCharacters * GetCharWidth(), -1));
        text->SetName(name);
        text->SetHint("Its own text");
        SetAccessibleName(text, accessibleName);
        grid->Add(text, wxSizerFlags().CentreVertical());
        return text;
    };
    m_hasAutomatic = MakeFlag("HasAutomatic", "&Automatic", first.hasAutomatic);
    grid->Add(m_hasAutomatic, wxSizerFlags().CentreVertical());
    m_automatic = makeText("Automatic", "Text of Automatic");
    m_hasMore = MakeFlag("HasMoreColours", "&More Colours...", first.hasMore);
    grid->Add(m_hasMore, wxSizerFlags().CentreVertical());
    m_more = makeText("MoreColours", "Text of More Colours");
    grid->Add(new wxStaticText(this, wxID_ANY, "&Default colour"), wxSizerFlags().CentreVertical());
    m_default = new wxColourCombo(this, wxID_ANY);
    m_default->GetPopup()->SetAutomaticText("");
    m_default->GetPopup()->SetCenterOn(wxGetTopLevelParent(this));
    m_default->Bind(wxEVT_COLOURPICKER_CHANGED, [this](wxColourPickerEvent&) { OnChange(); });
    m_default->SetName("Default");
    m_default->SetToolTip("The colour that \"Automatic\" stands for");
    grid->Add(m_default, wxSizerFlags().Expand());
    return grid;
}

wxSizer* ColourOptionFields::MakeCells()
{
    const ColourOptions first;
    auto* grid = new wxFlexGridSizer(2, FromDIP(wxSize(kGap, kGap)));
    const auto makeRow = [&](wxSpinCtrl*& field, const wxString& label, const char* name, int value, int least,
                             int most) {
        grid->Add(new wxStaticText(this, wxID_ANY, label), wxSizerFlags().CentreVertical());
        field = MakeCount(name, value, least, most);
        grid->Add(field, wxSizerFlags().CentreVertical());
    };
    makeRow(m_columnCount, "Col&umns", "Columns", first.columns, 4, 20);
    makeRow(m_cellSize, "&Size in pixels", "CellSize", first.cellSize, 12, 36);
    makeRow(m_margin, "Mar&gin in pixels", "Margin", first.margin, 1, 8);
    return grid;
}

wxSizer* ColourOptionFields::MakeBehaviour()
{
    const ColourOptions first;
    m_readOnly = MakeFlag("ReadOnly", "Read-onl&y", first.readOnly);
    m_refresh = MakeFlag("RefreshCombo", "&Redraw it for each hot cell", first.refresh);
    m_centre = MakeFlag("CenterOn", "Centre the dialog on the &window", first.centre);
    m_animate = MakeFlag("Animate", "A&nimate the opening", first.animate);
    m_duration = MakeCount("Duration", first.duration, 50, 2000);
    m_duration->SetIncrement(50);
    SetAccessibleName(m_duration, "Milliseconds");
    auto* animation = new wxBoxSizer(wxHORIZONTAL);
    animation->Add(m_animate, wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(kGap)));
    animation->Add(m_duration, wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(kGap)));
    animation->Add(new wxStaticText(this, wxID_ANY, "ms"), wxSizerFlags().CentreVertical());
    auto* grid = new wxFlexGridSizer(1, FromDIP(wxSize(kGap, kGap)));
    for (wxCheckBox* box : {m_readOnly, m_refresh, m_centre})
        grid->Add(box, wxSizerFlags().CentreVertical());
    grid->Add(animation, wxSizerFlags().CentreVertical());
    return grid;
}

wxCheckBox* ColourOptionFields::MakeFlag(const char* name, const wxString& label, bool value)
{
    auto* box = new wxCheckBox(this, wxID_ANY, label);
    box->SetName(name);
    box->SetValue(value);
    return box;
}

wxSpinCtrl* ColourOptionFields::MakeCount(const char* name, int first, int least, int most)
{
    auto* field =
        new wxSpinCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, least, most, first);
    field->SetName(name);
    return field;
}

// Enables or disables the three fields that depend on a check box. Then sends EVT_COLOUR_OPTIONS_CHANGED.
void ColourOptionFields::OnChange()
{
    m_automatic->Enable(m_hasAutomatic->GetValue());
    m_more->Enable(m_hasMore->GetValue());
    m_duration->Enable(m_animate->GetValue());
    TellChange(*this, EVT_COLOUR_OPTIONS_CHANGED);
}

}  // namespace gallery
