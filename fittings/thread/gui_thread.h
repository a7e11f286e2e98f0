#ifndef FITTINGS_THREAD_GUI_THREAD_H_
#define FITTINGS_THREAD_GUI_THREAD_H_

#include <wx/event.h>
#include <wx/thread.h>

#include <fittings/base/export.h>
#include <fittings/thread/thread_ex.h>

/// A worker that reports to the GUI by posting command events to one handler, until it is asked to stop.
///
/// Entry() works and calls PostEvent(); a false from it means that it was asked to stop and should return.
///
/// @code
/// wxDEFINE_EVENT(EVT_PRIME, wxCommandEvent);
///
/// class Primes : public wxGUIThread
/// {
/// public:
///     using wxGUIThread::wxGUIThread;
///     wxThread::ExitCode Entry() override
///     {
///         for (int n = 2; DoContinue(); ++n) {
///             if (IsPrime(n) && !PostEvent(EVT_PRIME, n))
///                 break;
///         }
///         return nullptr;
///     }
/// };
///
/// class PrimesFrame : public wxFrame
/// {
/// public:
///     PrimesFrame() : wxFrame(nullptr, wxID_ANY, "Primes"), m_primes(std::make_unique<Primes>(this))
///     {
///         Bind(EVT_PRIME, [this](wxCommandEvent& event) { SetTitle(wxString::Format("%d", event.GetInt())); });
///         m_primes->RunThread();
///     }
///     ~PrimesFrame() override
///     {
///         m_primes->StartKill();  // 1. ask it to stop
///         m_primes->Wait();       // 2. wait until it has
///         m_primes.reset();       // 3. destroy it; only then the handler may go
///     }
///
/// private:
///     std::unique_ptr<Primes> m_primes;
/// };
/// @endcode
///
/// That order of shutting down is the owner's to keep: StartKill(), Wait(), destroy. Destroying a worker that still
/// runs is not allowed. Its destructor neither stops it nor waits in time: the mutexes that PostEvent() uses are gone
/// when the base class waits.
///
/// The handler is not owned and must live until Wait() has returned. Destroying it then is safe with events still
/// queued: the toolkit drops them. The owner's thread makes, runs, stops, waits for and destroys the object;
/// DoContinue() and PostEvent() may be called by any thread.
class FITTINGS_API wxGUIThread : public wxThreadEx
{
public:
    /// Makes a worker that can be waited for.
    ///
    /// @param handler receives the events, on the GUI thread. Null: events are dropped, and the worker works on.
    explicit wxGUIThread(wxEvtHandler* handler);

    /// The worker must have ended, see above.
    ~wxGUIThread() override;

    /// Creates the thread and runs it; returns the result of Run(). In place of Create() and Run(), not after them.
    wxThreadError RunThread();

    /// Returns false from StartKill() on.
    bool DoContinue();

    /// Asks the worker to stop. Returns at once, does not wait, and cannot be taken back.
    ///
    /// Events that are queued already still arrive.
    void StartKill();

    /// Has the handler told by one event of that type when Entry() has returned, whatever ended it: its work done,
    /// StartKill(), an exception. To be called before RunThread(). No event at first.
    ///
    /// The event is a wxCommandEvent whose int is GetRunNumber() and whose client data is what Entry() returned.
    /// HasEnded() is true when it arrives, and Wait() returns at once.
    void SetEndEvent(int eventType);

    /// A number that no other worker of the process has, larger than those of the workers made before. Events that tell
    /// it are told apart from those that an earlier worker has left queued.
    int GetRunNumber() const { return m_runNumber; }

    /// @name Posting
    ///
    /// The handler gets a copy of the event, on the GUI thread, by the toolkit's pending events. Each overload returns
    /// true when the worker may go on: the event was queued, or dropped for want of a handler. It returns false when
    /// the worker was asked to stop; then nothing is queued.
    ///
    /// Nothing slows a worker down that posts faster than the GUI thread handles: its events fill the memory and keep
    /// the GUI from everything else. Report results at intervals, not each by itself.
    ///
    /// Client data is passed through as it is and never owned. An event that is dropped, or still queued when its
    /// handler is destroyed, frees nothing.
    ///
    /// The compiler cannot choose for PostEvent(type, value, 0): write 0L or nullptr.
    /// @{

    /// Sets the event's int to @a value and posts a copy. The event stays the caller's; after StartKill() it is left as
    /// it was.
    bool PostEvent(wxCommandEvent& event, int value);

    /// Posts a wxCommandEvent of that type and int, with id 0; everything else is empty.
    bool PostEvent(int eventType, int value);
    bool PostEvent(int eventType, int value, long extra);  ///< As above, with an extra long.
    bool PostEvent(int eventType, int value, void* data);  ///< As above, with client data.

    /// Posts a copy of the event as it is, also after StartKill(): a last result, which a stopped worker hands over.
    /// Returns false when there is no handler.
    bool PostResult(const wxCommandEvent& event);

    /// @}

protected:
    wxEvtHandler* const m_handler;  ///< Receives the events; not owned.
    bool m_continue = true;         ///< Until StartKill().

    /// Guards m_continue. Recursive: a derived class may hold it over calls of this class that must not be parted by
    /// StartKill().
    wxMutex m_continueMutex{wxMUTEX_RECURSIVE};

    /// One event at a time is made and posted. Taken before m_continueMutex, never after it.
    wxMutex m_postMutex{wxMUTEX_DEFAULT};

private:
    const int m_runNumber;
};

/// A wxGUIThread whose events are all of one type, named once.
///
/// Its PostEvent() takes the place of the base's, which would otherwise be chosen for PostEvent(value, number):
/// write wxGUIThread::PostEvent(...) for an event of another type or of one's own making.
///
/// @code
/// class Lines : public wxGUIThreadEx
/// {
/// public:
///     Lines(wxEvtHandler* handler, const std::vector<wxString>& lines)
///         : wxGUIThreadEx(handler, EVT_LONG_LINE), m_lines(lines) {}
///     wxThread::ExitCode Entry() override
///     {
///         for (std::size_t i = 0; i < m_lines.size() && DoContinue(); ++i) {
///             if (m_lines[i].length() > 80)
///                 PostEvent(static_cast<int>(i));
///         }
///         return nullptr;
///     }
///
/// private:
///     const std::vector<wxString>& m_lines;  // the handler's, which changes none until Wait() has returned
/// };
/// @endcode
///
/// Events may arrive after the worker is gone, where its handler lives on. What an event leads to, as the line of that
/// number here, must be the handler's therefore, or live as long as it. Client data that points into the worker does
/// not.
class FITTINGS_API wxGUIThreadEx : public wxGUIThread
{
public:
    /// @param handler see wxGUIThread.
    /// @param eventType the type of every event, for example from wxNewEventType().
    wxGUIThreadEx(wxEvtHandler* handler, int eventType);

    /// The worker must have ended, see wxGUIThread.
    ~wxGUIThreadEx() override;

    /// @name Posting
    ///
    /// As wxGUIThread::PostEvent() of the type named at construction, which says what is returned and who owns the
    /// data. The compiler cannot choose for PostEvent(value, 0): write 0L or nullptr.
    /// @{
    bool PostEvent(int value);              ///< Posts an event with that int.
    bool PostEvent(int value, long extra);  ///< Posts an event with that int and extra long.
    bool PostEvent(int value, void* data);  ///< Posts an event with that int and client data.
    /// @}

protected:
    const int m_eventType;  ///< Of every event.
};

#endif
