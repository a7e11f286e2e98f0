#ifndef FITTINGS_TESTS_COLOUR_COMBO_COMBO_ON_SCREEN_H_
#define FITTINGS_TESTS_COLOUR_COMBO_COMBO_ON_SCREEN_H_

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/frame.h>
#include <wx/panel.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <tests/colour/popup/open_popup.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

/// A combo whose animation a test can read and set. It records each call that shows its popup, as "x;y;width;height
/// flags".
class OpenCombo : public wxColourCombo
{
public:
    using wxColourCombo::AnimateShow;
    using wxColourCombo::m_animBitmap;
    using wxColourCombo::m_animDuration;
    using wxColourCombo::m_animFlags;
    using wxColourCombo::m_animRect;
    using wxColourCombo::m_animStart;
    using wxColourCombo::m_animTimer;
    using wxColourCombo::OutlineAt;

    void DoShowPopup(const wxRect& rect, int flags) override
    {
        shown.push_back(std::to_string(rect.x) + ";" + std::to_string(rect.y) + ";" + std::to_string(rect.width) + ";" +
                        std::to_string(rect.height) + " " + std::to_string(flags));
        wxColourCombo::DoShowPopup(rect, flags);
    }

    void Refresh(bool erase = true, const wxRect* rect = nullptr) override
    {
        ++refreshes;
        wxColourCombo::Refresh(erase, rect);
    }

    void HidePopup(bool generateEvent = false) override
    {
        hidden.push_back(generateEvent);
        wxColourCombo::HidePopup(generateEvent);
    }

    std::vector<std::string> shown;
    std::vector<bool> hidden;  ///< The argument generateEvent of each HidePopup() call.
    int refreshes = 0;
};

/// Names a test by its parameter, the combo's style.
inline std::string NameOfStyle(const testing::TestParamInfo<long>& info)
{
    return info.param == wxCB_READONLY ? "ReadOnly" : "WithText";
}

/// Opens a combo's popup as its button does. Returns false if the popup is not shown in time.
inline bool Opens(wxComboCtrl& combo)
{
    combo.Popup();
    return PumpUntil([&] { return combo.IsPopupShown(); });
}

/// Returns the position on the screen of a point in the combo's button.
inline wxPoint ButtonOf(const wxComboCtrl& combo)
{
    return combo.ClientToScreen(wxPoint(combo.GetClientSize().x - 10, combo.GetClientSize().y / 2));
}

/// A frame with a combo, and the combo's popup. The destructor destroys all three.
template <typename Combo = OpenCombo, typename Popup = OpenPopup>
class ComboOnScreen
{
public:
    /// Calls @a prepare with the popup before the combo owns it.
    explicit ComboOnScreen(long style = wxCB_READONLY, const std::function<void(Popup&)>& prepare = {})
        : frame(new wxFrame(nullptr, wxID_ANY, "combo", wxPoint(200, 150), wxSize(500, 400))),
          panel(new wxPanel(frame)), combo(new Combo), popup(new Popup)
    {
        combo->Create(panel, wxID_ANY, "", wxPoint(20, 60), wxSize(150, -1), style);
        if (prepare)
            prepare(*popup);
        combo->SetPopupControl(popup);
    }

    OwnedWindow<wxFrame> frame;
    wxPanel* panel;
    Combo* combo;
    Popup* popup;
};

#endif
