#ifndef FITTINGS_COLOUR_CLICK_WATCH_H_
#define FITTINGS_COLOUR_CLICK_WATCH_H_

#include <functional>
#include <utility>

#include <wx/eventfilter.h>

class wxWindow;

namespace fittings {

/// Grabs the pointer while a popup is opening, as the toolkit does while a popup is open. Meanwhile a click has no
/// effect on any other window: not on one of this program, not on a title bar, and not on one of another program.
class ClickWatch : public wxEventFilter
{
public:
    /// Calls @a onClick at a click of any mouse button outside @a owner or on one of its children.
    ClickWatch(wxWindow& owner, std::function<void()> onClick) : m_owner(owner), m_onClick(std::move(onClick)) {}
    ~ClickWatch() override { Stop(); }

    ClickWatch(const ClickWatch&) = delete;
    ClickWatch& operator=(const ClickWatch&) = delete;

    void Start();

    /// Must be called before the owner's window is destroyed.
    void Stop();

    /// Handles the clicks that the toolkit reports: those on the owner, on its children, and outside the program. Drops
    /// the wheel.
    int FilterEvent(wxEvent& event) override;

    /// Handles a click.
    void Click() const;

private:
    wxWindow& m_owner;
    const std::function<void()> m_onClick;
    unsigned long m_handler = 0;
    bool m_started = false;
};

}  // namespace fittings

#endif
