#ifndef FITTINGS_TESTS_COLOUR_COLOUR_LISTENER_H_
#define FITTINGS_TESTS_COLOUR_COLOUR_LISTENER_H_

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <fittings/colour/colour_popup.h>

/// The calls that ColourListener records.
using ColourCalls = std::vector<std::string>;

/// Records the calls of a popup, as "popup", "change #RRGGBB", "end #RRGGBB" or "cancel #RRGGBB".
class ColourListener : public wxColorPopupListener
{
public:
    ColourListener() = default;
    explicit ColourListener(wxColourPopup& popup) { popup.SetColorListener(this); }

    void OnColourPopup() override { Note("popup"); }
    void OnColourSelChange(const wxColour& colour) override { Note("change", &colour); }
    void OnColourSelEnd(const wxColour& colour) override { Note("end", &colour); }
    void OnColourSelCancel(const wxColour& colour) override { Note("cancel", &colour); }

    /// Returns the calls since the last Take().
    ColourCalls Take() { return std::exchange(m_calls, {}); }

    /// From now on, runs @a act within each call of this name.
    void During(const std::string& name, const std::function<void()>& act)
    {
        during = [name, act](const std::string& call) {
            if (call == name)
                act();
        };
    }

    std::function<void(const std::string& call)> during;  ///< Runs within each call; receives the call's name.

private:
    void Note(std::string call, const wxColour* colour = nullptr)
    {
        const std::size_t index = m_calls.size();
        m_calls.push_back(call);
        if (during)
            during(call);
        // Read the colour only after during(), to check that the colour still exists then.
        if (colour)
            m_calls.at(index) += " " + colour->GetAsString(wxC2S_HTML_SYNTAX).ToStdString();
    }

    ColourCalls m_calls;
};

#endif
