#ifndef FITTINGS_TESTS_SUPPORT_GUI_H_
#define FITTINGS_TESTS_SUPPORT_GUI_H_

#include <functional>

#include <wx/gdicmn.h>

class wxTopLevelWindow;
class wxWindow;

/// Runs the event loop until @a done returns true. Returns false if this takes longer than @a milliseconds times
/// Patience(). The default is long enough for a busy machine.
[[nodiscard]] bool PumpUntil(const std::function<bool()>& done, int milliseconds = 30000);

/// Handles every event that has arrived, and does the idle processing.
void PumpPending();

/// Shows a window and waits until it is active and its geometry no longer changes. Returns false if that takes too
/// long.
bool ShowAndSettle(wxTopLevelWindow* window);

/// Calls Destroy() of a window, and handles the events that follow.
void DestroyNow(wxWindow* window);

/// Whether the window or one of its children has the focus.
bool ContainsFocus(const wxWindow& window);

/// Moves the pointer to a place on the screen, and handles the events that follow.
void PointTo(const wxPoint& place);

/// Counts the assertions of the toolkit while the object exists. Without such an object, an assertion fails the test.
class ExpectAssertions
{
public:
    ExpectAssertions();
    ~ExpectAssertions();
    ExpectAssertions(const ExpectAssertions&) = delete;
    ExpectAssertions& operator=(const ExpectAssertions&) = delete;

    int Count() const { return m_count; }

private:
    friend bool NoteAssertion();
    ExpectAssertions* m_outer;
    int m_count = 0;
};

/// Counts an assertion and returns true if an ExpectAssertions object exists. Otherwise returns false.
bool NoteAssertion();

#endif
