#ifndef FITTINGS_CONFIG_PERSISTENT_WINDOW_RECORD_H_
#define FITTINGS_CONFIG_PERSISTENT_WINDOW_RECORD_H_

#include <functional>
#include <memory>
#include <optional>

#include <wx/gdicmn.h>

class wxTopLevelWindow;
class wxWindow;

// Private to the library.

namespace fittings {

/// What is known of a window for as long as it lives: the window itself keeps the object.
class WindowRecord
{
public:
    /// Attaches a new object to @a window. @a atEnd is called when the window is gone, and all of its children are.
    static std::shared_ptr<WindowRecord> Attach(wxWindow& window, std::function<void()> atEnd);

    explicit WindowRecord(std::function<void()> atEnd) : m_atEnd(std::move(atEnd)) {}
    ~WindowRecord() { m_atEnd(); }
    WindowRecord(const WindowRecord&) = delete;
    WindowRecord& operator=(const WindowRecord&) = delete;

    /// Follows where the window is while it is neither maximised, nor on the full screen, nor iconised.
    void Follow(wxTopLevelWindow& window);

    /// Whether the window is maximised, or was when it was hidden: the system then forgets it.
    bool IsMaximized(const wxTopLevelWindow& window) const;

    /// Whether the window has a place and size of its own to come back to, NormalRect().
    bool IsOutOfItsPlace(const wxTopLevelWindow& window) const;

    /// The place and size that were seen last; none before Follow().
    const std::optional<wxRect>& NormalRect() const { return m_normal; }

private:
    void Note(const wxTopLevelWindow& window);

    const std::function<void()> m_atEnd;
    std::optional<wxRect> m_normal;
    bool m_wasMaximized = false;  // When it was hidden.
    std::weak_ptr<WindowRecord> m_self;
};

}  // namespace fittings

#endif
