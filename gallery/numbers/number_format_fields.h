#ifndef FITTINGS_GALLERY_NUMBERS_NUMBER_FORMAT_FIELDS_H_
#define FITTINGS_GALLERY_NUMBERS_NUMBER_FORMAT_FIELDS_H_

#include <cstddef>
#include <vector>

#include <wx/event.h>
#include <wx/panel.h>

#include <fittings/numedit/number_format.h>

class wxBoxSizer;
class wxCheckBox;
class wxChoice;
class wxNumberCtrl;
class wxSizer;
class wxSpinCtrl;
class wxStaticText;
class wxTextCtrl;

namespace gallery {

/// Sent by a NumberFormatFields when its format changes.
wxDECLARE_EVENT(EVT_FORMAT_CHANGED, wxCommandEvent);

/// A panel with one control per field of CNumberFormat. Each control is named after its field, such as "AllowSign" for
/// m_bAllowSign and "Decimals" for m_nDecimals.
///
/// The constructor restores the format that SaveSettings() last saved.
class NumberFormatFields : public wxPanel
{
public:
    explicit NumberFormatFields(wxWindow* parent);

    CNumberFormat GetFormat() const;

    /// Sets the controls to @a format. The control of a limit that @a format does not use keeps its value. A number of
    /// digits above 99 becomes 99. A template that the control does not offer becomes "%s".
    void SetFormat(const CNumberFormat& format);

    void SaveSettings() const;

    /// Arranges the controls for a width in pixels.
    void Arrange(int width);

private:
    void LoadSettings();
    wxSizer* MakePresets();
    wxSizer* MakeAccepted();
    wxSizer* MakeLimits();
    wxSizer* MakeShown();
    wxCheckBox* MakeFlag(std::size_t index);
    void AddCharacter(wxSizer* grid, std::size_t index);
    void OnChange();

    wxBoxSizer* m_columns = nullptr;
    std::vector<wxCheckBox*> m_flags;
    std::vector<wxTextCtrl*> m_characters;
    std::vector<wxStaticText*> m_codes;
    std::vector<wxSpinCtrl*> m_counts;
    std::vector<wxNumberCtrl*> m_bounds;
    wxChoice* m_template = nullptr;
    bool m_settingFormat = false;
};

}  // namespace gallery

#endif
