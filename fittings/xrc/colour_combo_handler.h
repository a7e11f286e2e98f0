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
/// wxXmlResource::Get()->AddHandler(new wxColourComboXmlHandler);  // with InitAllHandlers(), before the first use
/// ...
/// auto* const line = XRCCTRL(*this, "line", wxColourCombo);
/// line->Bind(wxEVT_COLOURPICKER_CHANGED, [this](wxColourPickerEvent& event) { Draw(event.GetColour()); });
/// @endcode
///
/// | Property | Type | Meaning, and what is taken without it |
/// | --- | --- | --- |
/// | `style` | style | those of wxComboCtrl and of every window; none, which gives a text field |
/// | `colour` | colour | wxColourCombo::SetColour(); none |
/// | `value` | text or colour | of the text field; "#FF0000" and "rgb(255, 0, 0)" are taken as `colour`, as with a
/// wxColourPickerCtrl; empty |
/// | `buttonsize` | size | of the drop-down button; what the toolkit takes |
/// | `initial-colour` | colour | wxColourPopup::SetInitialColour(), which leaves the text of the field as it is; black
/// |
/// | `default-colour` | colour | wxColourPopup::SetDefaultColour(); black |
/// | `automatic-text` | text | wxColourPopup::SetAutomaticText(), an empty one takes the box away; "Automatic" |
/// | `more-colours-text` | text | wxColourPopup::SetMoreColoursText(), likewise; "More Colours..." |
/// | `refresh-combo` | boolean | wxColourPopup::SetRefreshCombo(); 0 |
///
/// And those of every window: `pos`, `size`, `tooltip`, `enabled`, `hidden`, `font` and the rest. The texts are
/// translated as any text of a resource is. In those of the two boxes no character stands for another, as "_" does in a
/// label.
///
/// A value that cannot be understood is reported, as wxXmlResource::ReportError() does, and taken for absent. So is a
/// `subclass` that is no wxColourCombo: the control is a plain one then. Host classes that are named by `subclass` say
/// wxDECLARE_DYNAMIC_CLASS().
///
/// GUI thread only.
class FITTINGS_API wxColourComboXmlHandler : public wxXmlResourceHandler
{
public:
    wxColourComboXmlHandler();
    ~wxColourComboXmlHandler() override;

    /// Whether @a node is an object of that class.
    bool CanHandle(wxXmlNode* node) override;

protected:
    /// Makes the control from the node that the base class holds.
    wxObject* DoCreateResource() override;

private:
    wxColourPopup* MakePopup();
};

#endif
