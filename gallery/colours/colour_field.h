#ifndef FITTINGS_GALLERY_COLOURS_COLOUR_FIELD_H_
#define FITTINGS_GALLERY_COLOURS_COLOUR_FIELD_H_

#include <functional>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>

namespace gallery {

/// A field for a colour: a read-only colour combo without "Automatic".
class ColourField : public wxColourCombo, private wxColorPopupListener
{
public:
    /// @a onChoose is called when the user has chosen one.
    ColourField(wxWindow* parent, std::function<void()> onChoose);

    ~ColourField() override;

    /// Black at first.
    const wxColour& GetColour() const { return m_colours->GetInitialColour(); }
    void SetColour(const wxColour& colour);

    wxColourPopup* GetColourPopup() const { return m_colours; }

private:
    void OnColourSelEnd(const wxColour& colour) override;

    std::function<void()> m_onChoose;
    wxColourPopup* m_colours;
};

}  // namespace gallery

#endif
