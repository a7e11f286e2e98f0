#ifndef FITTINGS_XRC_COLOUR_COMBO_HANDLER_H_
#define FITTINGS_XRC_COLOUR_COMBO_HANDLER_H_

#include <wx/xrc/xmlreshandler.h>

#include <fittings/base/export.h>

class wxColourCombo;
class wxColourPopup;

/// Makes a wxColourCombo with its wxColourPopup from an XML resource, for an object of class "wxColourCombo".
///
/// @code{.xml}
/// <object class="wxColourCombo" name="line">
///   <style>wxCB_READONLY</style>
///   <colour>#0000FF</colour>
///   <automatic-text>No line</automatic-text>
///   <tooltip>The colour of new lines</tooltip>
/// </object>
/// @endcode
///
/// @code
/// // Add the handler where the program calls InitAllHandlers(), before it makes controls from a resource.
/// wxXmlResource::Get()->AddHandler(new wxColourComboXmlHandler);
/// ...
/// auto* const line = XRCCTRL(*this, "line", wxColourCombo);
/// line->Bind(wxEVT_COLOURPICKER_CHANGED, [this](wxColourPickerEvent& event) { Draw(event.GetColour()); });
/// @endcode
///
/// | Property | Type | Meaning; default |
/// | --- | --- | --- |
/// | `style` | style | styles of wxComboCtrl and of every window; none (the text can be edited) |
/// | `colour` | colour | wxColourCombo::SetColour(); none |
/// | `value` | text or colour | text of the field, or a colour like "#FF0000" or "rgb(255, 0, 0)"; empty |
/// | `buttonsize` | size | of the drop-down button; the toolkit's default |
/// | `initial-colour` | colour | wxColourPopup::SetInitialColour(), which does not change the text; black |
/// | `default-colour` | colour | wxColourPopup::SetDefaultColour(); black |
/// | `automatic-text` | text | wxColourPopup::SetAutomaticText(), no box if empty; "Automatic" |
/// | `more-colours-text` | text | wxColourPopup::SetMoreColoursText(), no box if empty; "More Colours..." |
/// | `refresh-combo` | boolean | wxColourPopup::SetRefreshCombo(); 0 |
///
/// The properties of every window work too: `pos`, `size`, `tooltip`, `enabled`, `hidden`, `font` and the rest. The
/// texts are translated like every text of a resource. The texts of the two boxes are taken literally: "_" does not
/// mark a mnemonic as it does in a label.
///
/// An invalid value is reported through wxXmlResource::ReportError() and ignored. The same holds for a `subclass` that
/// is not a wxColourCombo: the control is then a plain wxColourCombo. The class in `subclass` must use
/// wxDECLARE_DYNAMIC_CLASS().
///
/// GUI thread only.
class FITTINGS_API wxColourComboXmlHandler : public wxXmlResourceHandler
{
public:
    wxColourComboXmlHandler();
    ~wxColourComboXmlHandler() override;

    /// Returns whether @a node is an object of class "wxColourCombo".
    bool CanHandle(wxXmlNode* node) override;

protected:
    /// Makes the control from the node that the base class holds.
    wxObject* DoCreateResource() override;

private:
    wxColourPopup* MakePopup();
};

#endif
