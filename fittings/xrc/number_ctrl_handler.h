#ifndef FITTINGS_XRC_NUMBER_CTRL_HANDLER_H_
#define FITTINGS_XRC_NUMBER_CTRL_HANDLER_H_

#include <wx/xrc/xmlreshandler.h>

#include <fittings/base/export.h>

/// Makes a wxNumberCtrl from an XML resource, for an object of class "wxNumberCtrl". If the object has a `subclass`,
/// makes an object of that class, which must be derived from wxNumberCtrl.
///
/// @code{.xml}
/// <object class="wxNumberCtrl" name="weight">
///   <value>72.5</value>
///   <min>0</min>
///   <max>250</max>
///   <decimals>3</decimals>
///   <template>%s kg</template>
/// </object>
/// @endcode
///
/// | Property | Type | Meaning; default |
/// | --- | --- | --- |
/// | `style` | style | styles of a single-line wxTextCtrl and of every window; none |
/// | `value` | decimal text with a dot as its point, never translated | wxNumberCtrl::SetDecimal(); an empty field |
/// | `min`, `max` | the same | wxNumberCtrl::SetRange(); no bound |
/// | `inc` | the same | wxNumberCtrl::SetIncrement(); 1 |
/// | `decimals` | integer | decimals of wxNumberCtrl::FromLocale(); 2 |
/// | `template` | text, with one `%s` | CNumberFormat::m_strTemplate; `%s` |
///
/// The properties of every window work too: `pos`, `size`, `tooltip`, `enabled`, `hidden`, `font` and the rest. The
/// format follows the user's settings; wxNumberCtrl::SetFormat() sets another one.
///
/// An invalid value is reported through wxXmlResource::ReportError() and ignored, and so is a `max` below `min`. A
/// template is valid if it has exactly one `%s` and each other percent sign is doubled. A `subclass` that is not a
/// wxNumberCtrl is reported and ignored too: the control is then a plain wxNumberCtrl. The class in `subclass` must use
/// wxDECLARE_DYNAMIC_CLASS().
///
/// GUI thread only.
class FITTINGS_API wxNumberCtrlXmlHandler : public wxXmlResourceHandler
{
public:
    wxNumberCtrlXmlHandler();
    ~wxNumberCtrlXmlHandler() override;

    /// Returns whether @a node is an object of class "wxNumberCtrl".
    bool CanHandle(wxXmlNode* node) override;

protected:
    /// Makes the control from the node that the base class holds.
    wxObject* DoCreateResource() override;
};

#endif
