#ifndef FITTINGS_COLOUR_CLICK_WATCH_H_
#define FITTINGS_COLOUR_CLICK_WATCH_H_

#include <functional>
#include <utility>

#include <wx/eventfilter.h>

class wxWindow;

namespace fittings {

/// Grabs the pointer from Start() to Stop(), while a popup is opening, as the toolkit does while a popup is open.
/// Meanwhile clicks have no effect outside the owner: neither on other windows of this program, nor on title bars, nor
/// on other programs.
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

    /// Calls the callback for a click that the toolkit reports on a child of the owner or outside the program. Drops
    /// such a click and every turn of the wheel. Skips a click on the owner itself and all other events.
    int FilterEvent(wxEvent& event) override;

    /// Calls the callback.
    void Click() const;

private:
    wxWindow& m_owner;
    const std::function<void()> m_onClick;
    unsigned long m_handler = 0;
    bool m_started = false;
};

}  // namespace fittings

#endif
