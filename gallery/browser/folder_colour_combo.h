#ifndef FITTINGS_GALLERY_BROWSER_FOLDER_COLOUR_COMBO_H_
#define FITTINGS_GALLERY_BROWSER_FOLDER_COLOUR_COMBO_H_

#include <functional>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>

namespace gallery {

/// Asks for the colour of a folder. An invalid colour means that the folder has no colour of its own, which the popup
/// shows as "Automatic".
class FolderColourCombo : public wxColourCombo, private wxColorPopupListener
{
public:
    using Handler = std::function<void(const wxColour&)>;

    /// @a onLook is called with the colour of each cell that the user moves to. When the user has chosen a colour or
    /// cancelled, @a onLook is called with the colour that the folder now has. After a choice, @a onChoose is then
    /// called with the same colour.
    FolderColourCombo(wxWindow* parent, Handler onLook, Handler onChoose);

    ~FolderColourCombo() override;

    /// Shows the colour of another folder. @a automatic is the colour that "Automatic" stands for.
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
