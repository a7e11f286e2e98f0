#ifndef FITTINGS_GALLERY_BROWSER_FOLDER_COLOUR_COMBO_H_
#define FITTINGS_GALLERY_BROWSER_FOLDER_COLOUR_COMBO_H_

#include <functional>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>

namespace gallery {

/// Asks for the colour of a folder. "Automatic" means that the folder has no colour of its own. The colour is then
/// invalid, also in the calls of the handlers.
class FolderColourCombo : public wxColourCombo, private wxColorPopupListener
{
public:
    using Handler = std::function<void(const wxColour&)>;

    /// @a onLook is called with each colour that becomes hot, and finally with the colour in effect. @a onChoose is
    /// called with the chosen colour.
    FolderColourCombo(wxWindow* parent, Handler onLook, Handler onChoose);

    ~FolderColourCombo() override;

    /// Shows the colour of another folder. @a automatic is the colour in which "Automatic" is shown.
    void ShowColour(const wxColour& colour, const wxColour& automatic);

private:
    class ColourPopup;

    void OnColourSelChange(const wxColour& colour) override;
    void OnColourSelEnd(const wxColour& colour) override;
    void OnColourSelCancel(const wxColour& colour) override;

    Handler m_onLook;
    Handler m_onChoose;
    ColourPopup* m_colours;
    wxColour m_colour;  ///< The folder's colour; invalid for none.
};

}  // namespace gallery

#endif
