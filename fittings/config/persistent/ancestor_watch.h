#ifndef FITTINGS_CONFIG_PERSISTENT_ANCESTOR_WATCH_H_
#define FITTINGS_CONFIG_PERSISTENT_ANCESTOR_WATCH_H_

#include <functional>
#include <memory>

class wxWindow;

// Private to the library.

namespace fittings {

/// Tells when one of the windows around a window is about to go, while the window itself is still whole. Some windows,
/// such as books, delete what is in them so that it hears of it too late.
class AncestorWatch
{
public:
    AncestorWatch(wxWindow& window, std::function<void()> isGoing);
    ~AncestorWatch();
    AncestorWatch(const AncestorWatch&) = delete;
    AncestorWatch& operator=(const AncestorWatch&) = delete;

private:
    std::shared_ptr<std::function<void()>>
        m_isGoing;  // Shared with the windows around; empty once this object is gone.
};

}  // namespace fittings

#endif
