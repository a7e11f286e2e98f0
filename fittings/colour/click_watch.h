#ifndef FITTINGS_COLOUR_CLICK_WATCH_H_
#define FITTINGS_COLOUR_CLICK_WATCH_H_

#include <functional>
#include <utility>

#include <wx/eventfilter.h>

class wxWindow;

namespace fittings {

/// Watches for clicks on other windows of the program while a popup is opening. An open popup needs no watch, because
/// it grabs the pointer.
class ClickWatch : public wxEventFilter
{
public:
    /// Calls @a onClick at a left click on any window but @a owner. The clicked window gets the click afterwards.
    ClickWatch(const wxWindow& owner, std::function<void()> onClick) : m_owner(owner), m_onClick(std::move(onClick)) {}
    ~ClickWatch() override { Stop(); }

    ClickWatch(const ClickWatch&) = delete;
    ClickWatch& operator=(const ClickWatch&) = delete;

    void Start();
    void Stop();

    /// Handles the clicks on other windows. Clicks with buttons other than the left one are dropped.
    int FilterEvent(wxEvent& event) override;

private:
    const wxWindow& m_owner;
    const std::function<void()> m_onClick;
    bool m_started = false;
};

}  // namespace fittings

#endif
