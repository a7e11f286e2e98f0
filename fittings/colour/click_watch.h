#ifndef FITTINGS_COLOUR_CLICK_WATCH_H_
#define FITTINGS_COLOUR_CLICK_WATCH_H_

#include <functional>
#include <utility>

#include <wx/eventfilter.h>

class wxWindow;

namespace fittings {

/// Grabs the pointer for a control, the owner, from Start() to Stop(). Use it while the popup of the owner is opening:
/// the toolkit grabs the pointer only while the popup is open. During the grab, a click outside the owner has no effect
/// on other windows of this program, on title bars or on other programs.
class ClickWatch : public wxEventFilter
{
public:
    /// During the grab, @a onClick is called for each click outside @a owner, whatever the mouse button is. A click on
    /// a child of @a owner counts as a click outside.
    ClickWatch(wxWindow& owner, std::function<void()> onClick) : m_owner(owner), m_onClick(std::move(onClick)) {}
    ~ClickWatch() override { Stop(); }

    ClickWatch(const ClickWatch&) = delete;
    ClickWatch& operator=(const ClickWatch&) = delete;

    void Start();

    /// Must be called before the owner's window is destroyed.
    void Stop();

    /// Calls the callback for a click that the toolkit reports on a child of the owner or outside the program. Drops
    /// such a click and every turn of the wheel. The toolkit handles a click on the owner itself and all other events.
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
