#ifndef FITTINGS_CONFIG_PERSISTENCE_ANCESTOR_WATCH_H_
#define FITTINGS_CONFIG_PERSISTENCE_ANCESTOR_WATCH_H_

#include <functional>
#include <memory>

class wxWindow;

// Private to the library.

namespace fittings {

/// Calls a function when an ancestor of a window is about to be destroyed. The window itself is still whole at that
/// moment. Its own wxEVT_DESTROY may come too late: a book deletes its pages without Destroy(), and only the base class
/// of a page is left when the page sends the event.
class AncestorWatch
{
public:
    /// Calls @a onDestruction when an ancestor of @a window is about to be destroyed.
    AncestorWatch(wxWindow& window, std::function<void()> onDestruction);
    ~AncestorWatch();
    AncestorWatch(const AncestorWatch&) = delete;
    AncestorWatch& operator=(const AncestorWatch&) = delete;

private:
    // Shared with the handlers of the ancestors. The destructor of this object makes the function empty.
    std::shared_ptr<std::function<void()>> m_onDestruction;
};

}  // namespace fittings

#endif
