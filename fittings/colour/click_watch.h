#ifndef FITTINGS_COLOUR_CLICK_WATCH_H_
#define FITTINGS_COLOUR_CLICK_WATCH_H_

#include <functional>
#include <utility>

#include <wx/eventfilter.h>

class wxWindow;

namespace fittings {

/// Sees the clicks on the program's other windows, as an open popup does by its grab of the pointer.
class ClickWatch : public wxEventFilter
{
public:
    /// @a onClick is called at a left click on any window but @a owner; the window gets the click afterwards.
    ClickWatch(const wxWindow& owner, std::function<void()> onClick) : m_owner(owner), m_onClick(std::move(onClick)) {}
    ~ClickWatch() override { Stop(); }

    ClickWatch(const ClickWatch&) = delete;
    ClickWatch& operator=(const ClickWatch&) = delete;

    void Start();
    void Stop();

    /// Takes the clicks on other windows; those of the other buttons are lost.
    int FilterEvent(wxEvent& event) override;

private:
    const wxWindow& m_owner;
    const std::function<void()> m_onClick;
    bool m_started = false;
};

}  // namespace fittings

#endif
