#ifndef FITTINGS_CONFIG_PERSISTENCE_WINDOW_RECORD_H_
#define FITTINGS_CONFIG_PERSISTENCE_WINDOW_RECORD_H_

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include <wx/gdicmn.h>
#include <wx/timer.h>

class wxEvent;
class wxTopLevelWindow;
class wxWindow;

// Private to the library.

namespace fittings {

/// Calls a function at the end of a window's destruction. After Follow(), also records the window's place and size.
/// Owned by the window.
class WindowRecord
{
public:
    /// Attaches a new object to @a window. @a atEnd is called at the end of the window's destruction, when all of its
    /// children are destroyed.
    static std::shared_ptr<WindowRecord> Attach(wxWindow& window, std::function<void()> atEnd);

    explicit WindowRecord(std::function<void()> atEnd) : m_atEnd(std::move(atEnd)) {}
    ~WindowRecord() { m_atEnd(); }
    WindowRecord(const WindowRecord&) = delete;
    WindowRecord& operator=(const WindowRecord&) = delete;

    /// From now on, records the window's place and size while it is neither maximised, full screen nor iconised.
    void Follow(wxTopLevelWindow& window);

    /// Returns true when the window is maximised. A hidden window counts as maximised if it was maximised when it was
    /// hidden, because the toolkit no longer reports this state.
    bool IsMaximized(const wxTopLevelWindow& window) const;

    /// Returns true when the window is maximised, full screen or iconised.
    bool IsOutOfItsPlace(const wxTopLevelWindow& window) const;

    /// Returns the last place and size that Follow() has recorded; none before Follow().
    const std::optional<wxRect>& NormalRect() const { return m_normal; }

private:
    void RecordPlaceOfProgram(wxTopLevelWindow& window, const wxEvent& event);
    void RecordPlace(const wxTopLevelWindow& window);

    const std::function<void()> m_atEnd;
    std::optional<wxRect> m_normal;
    wxTimer m_settling;
    bool m_wasMaximized = false;  // Whether the window was maximised when it was hidden.
    std::weak_ptr<WindowRecord> m_self;
};

}  // namespace fittings

#endif
