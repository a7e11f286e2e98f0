#include <gallery/colours/colours_page.h>

#include <algorithm>

#include <wx/bitmap.h>
#include <wx/button.h>
#include <wx/dataview.h>
#include <wx/image.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <fittings/colour/colour_popup.h>
#include <fittings/colour/colour_table.h>

#include <gallery/colours/colour_option_fields.h>
#include <gallery/pages/page_layout.h>
#include <gallery/pages/page_settings.h>
#include <gallery/pages/readable_colour.h>
#include <gallery/pages/window_helpers.h>

namespace gallery {

namespace {

constexpr const char* kColourKey = "Colour";
constexpr int kBlockHeight = 176;  // The height of the preview, and the least height of the list of events.
constexpr int kChoiceWidth = 180;
constexpr int kPreviewWidth = 160;
constexpr int kEventCharacters = 42;
constexpr int kColourCharacters = 23;
constexpr int kSwatchSize = 16;
constexpr int kMostEvents = 500;

const wxColour kFirstColour(0, 0, 255);

// Returns a text such as "Blue #0000FF"; only the number for a colour without a name.
wxString NameOf(const wxColour& colour, const wxString& separator)
{
    const wxString number = colour.GetAsString(wxC2S_HTML_SYNTAX);
    for (int i = 0; i < fittings::kColourCount; ++i) {
        if (GetColourTable()[i].crColour == colour.GetRGB())
            return wxString(GetColourName(i)).Trim() + separator + number;
    }
    return number;
}

// Returns a square of @a colour. For an invalid colour, the square is transparent: without a picture in the first row,
// GTK would leave no room for the pictures in the other rows.
wxBitmap SwatchOf(const wxColour& colour, int size)
{
    wxImage swatch(size, size);
    if (!colour.IsOk()) {
        swatch.SetMaskColour(0, 0, 0);
        return wxBitmap(swatch);
    }
    const wxColour frame = wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT);
    swatch.SetRGB(wxRect(0, 0, size, size), frame.Red(), frame.Green(), frame.Blue());
    swatch.SetRGB(wxRect(1, 1, size - 2, size - 2), colour.Red(), colour.Green(), colour.Blue());
    return wxBitmap(swatch);
}

int HeaderHeight(const wxWindow* window)
{
    return std::max(window->FromDIP(28), window->GetCharHeight() + window->FromDIP(8));
}

// Makes a row for a heading, as high as the "Clear" button.
wxSizer* MakeHeader(wxStaticText* heading)
{
    auto* header = new wxBoxSizer(wxHORIZONTAL);
    header->SetMinSize(wxSize(-1, HeaderHeight(heading)));
    header->Add(heading, wxSizerFlags(1).CentreVertical());
    return header;
}

}  // namespace

ColoursPage::ColoursPage(wxWindow* parent)
    : wxScrolledWindow(parent), m_colour(kColourSettings.LoadColour(kColourKey, kFirstColour))
{
    SetName("Colours");
    auto* choice = new wxBoxSizer(wxHORIZONTAL);
    choice->Add(MakeChoice(), wxSizerFlags().Border(wxRIGHT, FromDIP(kColumnGap)));
    choice->Add(MakePreview());
    m_trial = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags block = wxSizerFlags().Border(wxRIGHT | wxBOTTOM, FromDIP(kColumnGap));
    m_trial->Add(choice, block);
    m_trial->Add(MakeEvents(), wxSizerFlags(block).Proportion(1).Expand());
    m_options = new ColourOptionFields(this);
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(m_trial, wxSizerFlags().Expand().Border(wxLEFT | wxTOP, FromDIP(kMargin)));
    rows->Add(m_options, wxSizerFlags().Expand().Border(wxLEFT, FromDIP(kMargin)));
    SetSizer(rows);
    SetScrollRate(0, FromDIP(10));
    KeepFocusInSight(this);

    m_options->Bind(EVT_COLOUR_OPTIONS_CHANGED, [this](wxCommandEvent&) { MakeCombo(); });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        Arrange();
        event.Skip();
    });
    MakeCombo();
    ShowColour(m_colour);
}

ColoursPage::~ColoursPage()
{
    // Close the popup here: an open popup would later call the destroyed page.
    m_combo->HidePopup(false);
}

void ColoursPage::SaveSettings() const
{
    m_options->SaveSettings();
    kColourSettings.SaveColour(kColourKey, m_colour);
}

// Makes the label of the combo; MakeCombo() puts the combo below it.
wxSizer* ColoursPage::MakeChoice()
{
    m_label = MakeHeading(this, "&Colour");
    m_choice = new wxBoxSizer(wxVERTICAL);
    m_choice->Add(MakeHeader(m_label), wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(kGap)));
    m_choice->SetMinSize(FromDIP(wxSize(kChoiceWidth, -1)));
    return m_choice;
}

wxSizer* ColoursPage::MakePreview()
{
    wxStaticText* heading = MakeHeading(this, "Preview");
    m_preview =
        new wxWindow(this, wxID_ANY, wxDefaultPosition, FromDIP(wxSize(kPreviewWidth, kBlockHeight)), wxBORDER_THEME);
    m_preview->SetName("Preview");
    m_preview->SetCanFocus(false);
    m_previewText =
        new wxStaticText(m_preview, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxALIGN_CENTRE_HORIZONTAL);
    m_previewText->SetName("PreviewText");
    auto* middle = new wxBoxSizer(wxVERTICAL);
    middle->AddStretchSpacer();
    middle->Add(m_previewText, wxSizerFlags().Expand());
    middle->AddStretchSpacer();
    m_preview->SetSizer(middle);

    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(MakeHeader(heading), wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(kGap)));
    rows->Add(m_preview);
    return rows;
}

wxSizer* ColoursPage::MakeEvents()
{
    wxStaticText* heading = MakeHeading(this, "What the host &learns");
    m_events = new wxDataViewListCtrl(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_SINGLE | wxBORDER_THEME);
    m_events->SetName("Events");
    SetAccessibleName(m_events, "What the host learns");
    m_events->SetMinSize(FromDIP(wxSize(320, kBlockHeight)));
    m_events->AppendTextColumn("Event", wxDATAVIEW_CELL_INERT, kEventCharacters * GetCharWidth());
    m_events->AppendIconTextColumn("Colour", wxDATAVIEW_CELL_INERT, kColourCharacters * GetCharWidth());
    auto* clear = new wxButton(this, wxID_ANY, "Cl&ear", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
    clear->SetMinSize({std::max(FromDIP(72), GetTextExtent("Clear").x + FromDIP(24)), HeaderHeight(this)});
    clear->SetName("Clear");
    clear->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { m_events->DeleteAllItems(); });

    wxSizer* header = MakeHeader(heading);
    header->Add(clear, wxSizerFlags().CentreVertical());
    auto* rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(header, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(kGap)));
    rows->Add(m_events, wxSizerFlags(1).Expand());
    return rows;
}

// Arranges the page for its width. The page scrolls when its contents are higher than the window.
void ColoursPage::Arrange()
{
    const int width = GetClientSize().x - FromDIP(kMargin);
    ArrangeColumns(m_trial, width);
    m_options->Arrange(width);
}

// Makes a combo with the current options. Destroys the previous combo, if any.
void ColoursPage::MakeCombo()
{
    if (m_combo) {
        m_choice->Detach(m_combo);
        m_combo->Destroy();
    }
    m_combo = MakeColourCombo(this, m_options->GetOptions(), m_colour);
    m_combo->SetName("Combo");
    m_combo->MoveAfterInTabOrder(m_label);
    m_combo->Bind(wxEVT_COMBOBOX_DROPDOWN, [this](wxCommandEvent&) { Note("wxEVT_COMBOBOX_DROPDOWN"); });
    m_combo->Bind(wxEVT_COMBOBOX_CLOSEUP, [this](wxCommandEvent&) { Note("wxEVT_COMBOBOX_CLOSEUP"); });
    const auto show = [this](const wxString& name) {
        return [this, name](wxColourPickerEvent& event) { OnColour(event, name); };
    };
    m_combo->Bind(wxEVT_COLOURPICKER_CURRENT_CHANGED, show("wxEVT_COLOURPICKER_CURRENT_CHANGED"));
    m_combo->Bind(wxEVT_COLOURPICKER_CHANGED, show("wxEVT_COLOURPICKER_CHANGED"));
    m_combo->Bind(wxEVT_COLOURPICKER_DIALOG_CANCELLED, show("wxEVT_COLOURPICKER_DIALOG_CANCELLED"));
    m_choice->Insert(1, m_combo, wxSizerFlags().Expand());
    Layout();
}

void ColoursPage::ShowColour(const wxColour& colour)
{
    m_preview->SetBackgroundColour(colour);
    m_previewText->SetBackgroundColour(colour);
    m_previewText->SetForegroundColour(BlackOrWhiteOn(colour));
    m_previewText->SetLabelText(NameOf(colour, "\n"));
    m_preview->Layout();
    m_preview->Refresh();
}

void ColoursPage::Note(const wxString& name, const wxColour& colour)
{
    if (m_events->GetItemCount() >= kMostEvents)
        m_events->DeleteItem(0);
    const wxString text = colour.IsOk() ? NameOf(colour, " ") : wxString();
    wxVariant shown;
    shown << wxDataViewIconText(text, SwatchOf(colour, FromDIP(kSwatchSize)));
    wxVector<wxVariant> row;
    row.push_back(name);
    row.push_back(shown);
    m_events->AppendItem(row);
    m_events->EnsureVisible(m_events->RowToItem(m_events->GetItemCount() - 1));
}

void ColoursPage::OnColour(wxColourPickerEvent& event, const wxString& name)
{
    Note(name, event.GetColour());
    m_colour = m_combo->GetColour();
    ShowColour(event.GetColour());
}

}  // namespace gallery
