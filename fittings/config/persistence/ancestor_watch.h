#ifndef FITTINGS_CONFIG_PERSISTENCE_ANCESTOR_WATCH_H_
#define FITTINGS_CONFIG_PERSISTENCE_ANCESTOR_WATCH_H_

#include <functional>
#include <memory>

class wxWindow;

// Private to the library.

namespace fittings {

/// Reports when a window's ancestor is about to be destroyed, while the window itself is still whole. Some windows,
/// such as books, notify their children of the destruction too late.
class AncestorWatch
{
public:
    /// Calls @a onDestruction when an ancestor of @a window is about to be destroyed.
    AncestorWatch(wxWindow& window, std::function<void()> onDestruction);
    ~AncestorWatch();
    AncestorWatch(const AncestorWatch&) = delete;
    AncestorWatch& operator=(const AncestorWatch&) = delete;

private:
    // Shared with the handlers of the ancestors; empty once this object is destroyed.
    std::shared_ptr<std::function<void()>> m_onDestruction;
};

}  // namespace fittings

#endif
