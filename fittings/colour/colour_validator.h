#ifndef FITTINGS_COLOUR_COLOUR_VALIDATOR_H_
#define FITTINGS_COLOUR_COLOUR_VALIDATOR_H_

#include <wx/validate.h>

#include <fittings/base/export.h>

class wxColour;

/// Transfers a colour between the host's variable and a wxColourCombo, as wxGenericValidator does for the toolkit's
/// controls. It works on a wxColourPickerCtrl as well.
///
/// @code
/// wxColour line = *wxBLUE;
/// wxDialog dialog(nullptr, wxID_ANY, "Line");
/// new wxColourCombo(&dialog, wxID_ANY, *wxBLACK, wxDefaultPosition, wxDefaultSize, wxCB_READONLY,
///                   wxColourValidator(&line));
/// if (dialog.ShowModal() == wxID_OK)
///     Draw(line);
/// @endcode
///
/// Validate() accepts every colour. The toolkit's class information does not distinguish this class from wxValidator:
/// use dynamic_cast. A derived class must override Clone(); otherwise the control's validator is a plain
/// wxColourValidator. GUI thread only.
class FITTINGS_API wxColourValidator : public wxValidator
{
public:
    /// @a colour is not owned. It must outlive the validator and each control that the validator was set on. If
    /// @a colour is null, nothing is transferred, and both transfers return true.
    explicit wxColourValidator(wxColour* colour);

    /// Copies the pointer to the colour, but not the window.
    wxColourValidator(const wxColourValidator& other);

    ~wxColourValidator() override;

    /// Returns a new validator made by the copy constructor; the caller owns it. wxWindow::SetValidator() calls this.
    wxObject* Clone() const override;

    /// Returns true. @a parent is not used.
    bool Validate(wxWindow* parent) override;

    /// Shows the host's colour in the control. The control sends no event. Returns false and changes nothing for an
    /// invalid colour, for a control of another class, and for a wxColourCombo without a wxColourPopup.
    bool TransferToWindow() override;

    /// Copies the control's colour to the host's variable. Returns false and changes nothing for a control of another
    /// class and for a control that has no colour.
    bool TransferFromWindow() override;

protected:
    wxColour* m_colour;  ///< The host's variable, not owned; may be null.
};

#endif
