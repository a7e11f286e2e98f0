#ifndef FITTINGS_XRC_NUMBER_CTRL_HANDLER_H_
#define FITTINGS_XRC_NUMBER_CTRL_HANDLER_H_

#include <wx/xrc/xmlreshandler.h>

#include <fittings/base/export.h>

/// Makes a wxNumberCtrl, or a host's class that is derived from it, from an XML resource, for an object of class
/// "wxNumberCtrl".
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
/// | Property | Type | Meaning, and what is taken without it |
/// | --- | --- | --- |
/// | `style` | style | those of wxTextCtrl for one line, and of every window; none |
/// | `value` | decimal text with a dot as its point, never translated | wxNumberCtrl::SetDecimal(); an empty field |
/// | `min`, `max` | the same | wxNumberCtrl::SetRange(); no bound |
/// | `inc` | the same | wxNumberCtrl::SetIncrement(); 1 |
/// | `decimals` | integer | of wxNumberCtrl::FromLocale(); 2 |
/// | `template` | text, with one `%s` | CNumberFormat::m_strTemplate; `%s` |
///
/// And those of every window: `pos`, `size`, `tooltip`, `enabled`, `hidden`, `font` and the rest. The format is the
/// user's own: wxNumberCtrl::SetFormat() gives another one.
///
/// A value that cannot be understood is reported, as wxXmlResource::ReportError() does, and taken for absent: so is a
/// template that has not exactly one `%s`, and no other `%` but `%%`. So is a `subclass` that is no wxNumberCtrl: the
/// control is a plain one then. Host classes that are named by `subclass` say wxDECLARE_DYNAMIC_CLASS().
///
/// GUI thread only.
class FITTINGS_API wxNumberCtrlXmlHandler : public wxXmlResourceHandler
{
public:
    wxNumberCtrlXmlHandler();
    ~wxNumberCtrlXmlHandler() override;

    /// Whether @a node is an object of that class.
    bool CanHandle(wxXmlNode* node) override;

protected:
    /// Makes the control from the node that the base class holds.
    wxObject* DoCreateResource() override;
};

#endif
