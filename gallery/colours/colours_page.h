#ifndef FITTINGS_GALLERY_COLOURS_COLOURS_PAGE_H_
#define FITTINGS_GALLERY_COLOURS_COLOURS_PAGE_H_

#include <wx/colour.h>
#include <wx/scrolwin.h>

#include <fittings/colour/colour_combo.h>

class wxBoxSizer;
class wxDataViewListCtrl;
class wxSizer;
class wxStaticText;

namespace gallery {

class ColourOptionFields;

/// A page with a colour combo, controls for its options, a list of its events, and a preview of the colour.
///
/// The constructor restores the options and the colour that SaveSettings() last saved. When the user changes an option,
/// the page makes a new combo, because the options of a popup must be set before it is first shown.
class ColoursPage : public wxScrolledWindow
{
public:
    explicit ColoursPage(wxWindow* parent);
    ~ColoursPage() override;

    wxColourCombo* GetCombo() const { return m_combo; }

    /// Returns the list of the events and their colours, with the latest event at the bottom.
    wxDataViewListCtrl* GetEvents() const { return m_events; }

    ColourOptionFields* GetFields() const { return m_options; }

    /// Returns the colour in effect.
    const wxColour& GetColour() const { return m_colour; }

    void SaveSettings() const;

private:
    wxSizer* MakeChoice();
    wxSizer* MakePreview();
    wxSizer* MakeEvents();
    void Arrange();
    void MakeCombo();
    void ShowColour(const wxColour& colour);
    void Note(const wxString& name, const wxColour& colour = wxNullColour);

    void OnColour(wxColourPickerEvent& event, const wxString& name);

    wxBoxSizer* m_trial = nullptr;
    wxSizer* m_choice = nullptr;
    wxStaticText* m_label = nullptr;
    wxColourCombo* m_combo = nullptr;
    wxWindow* m_preview = nullptr;
    wxStaticText* m_previewText = nullptr;
    wxDataViewListCtrl* m_events = nullptr;
    ColourOptionFields* m_options = nullptr;
    wxColour m_colour;
};

}  // namespace gallery

#endif
