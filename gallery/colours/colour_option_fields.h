#ifndef FITTINGS_GALLERY_COLOURS_COLOUR_OPTION_FIELDS_H_
#define FITTINGS_GALLERY_COLOURS_COLOUR_OPTION_FIELDS_H_

#include <wx/event.h>
#include <wx/panel.h>

#include <gallery/colours/colour_options.h>

class wxBoxSizer;
class wxCheckBox;
class wxColourCombo;
class wxSizer;
class wxSpinCtrl;
class wxTextCtrl;

namespace gallery {

/// Sent by a ColourOptionFields when its options change.
wxDECLARE_EVENT(EVT_COLOUR_OPTIONS_CHANGED, wxCommandEvent);

/// A panel with one control for each of the ColourOptions. The controls have names such as "HasAutomatic", "Automatic"
/// and "CellSize".
///
/// The constructor restores the options that SaveSettings() last saved.
class ColourOptionFields : public wxPanel
{
public:
    explicit ColourOptionFields(wxWindow* parent);

    ColourOptions GetOptions() const;

    void SaveSettings() const;

    /// Arranges the controls for a width in pixels.
    void Arrange(int width);

private:
    void LoadSettings();
    wxSizer* MakeBoxes();
    wxSizer* MakeCells();
    wxSizer* MakeBehaviour();
    wxCheckBox* MakeFlag(const char* name, const wxString& label, bool value);
    wxSpinCtrl* MakeCount(const char* name, int first, int least, int most);
    void OnChange();

    wxBoxSizer* m_columns = nullptr;
    wxCheckBox* m_hasAutomatic = nullptr;
    wxTextCtrl* m_automatic = nullptr;
    wxCheckBox* m_hasMore = nullptr;
    wxTextCtrl* m_more = nullptr;
    wxColourCombo* m_default = nullptr;
    wxSpinCtrl* m_columnCount = nullptr;
    wxSpinCtrl* m_cellSize = nullptr;
    wxSpinCtrl* m_margin = nullptr;
    wxCheckBox* m_readOnly = nullptr;
    wxCheckBox* m_refresh = nullptr;
    wxCheckBox* m_centre = nullptr;
    wxCheckBox* m_animate = nullptr;
    wxSpinCtrl* m_duration = nullptr;
};

}  // namespace gallery

#endif
