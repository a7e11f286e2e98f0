#ifndef FITTINGS_THREAD_GUI_THREAD_H_
#define FITTINGS_THREAD_GUI_THREAD_H_

#include <wx/event.h>
#include <wx/thread.h>

#include <fittings/base/export.h>
#include <fittings/thread/thread_ex.h>

/// A worker that reports to the GUI by posting command events to one handler, until it is asked to stop.
///
/// Entry() does the work and calls PostEvent(). If that returns false, the worker was asked to stop: Entry() should
/// return.
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
///         m_primes->Wait();       // 2. wait until it has ended
///         m_primes.reset();       // 3. destroy it before its handler
///     }
///
/// private:
///     std::unique_ptr<Primes> m_primes;
/// };
/// @endcode
///
/// The owner must shut the worker down in this order: StartKill(), Wait(), destroy. Do not destroy a worker that still
/// runs. The destructor does not stop the worker and waits too late: the mutexes that PostEvent() uses are destroyed
/// before the base class waits.
///
/// The worker does not own the handler. The handler must live until Wait() has returned. It may then be destroyed even
/// if events are still queued: the toolkit drops these events. The owner's thread makes, runs, stops, waits for and
/// destroys the object. Any thread may call DoContinue() and PostEvent().
class FITTINGS_API wxGUIThread : public wxThreadEx
{
public:
    /// Makes a joinable worker.
    ///
    /// @param handler  receives the events, on the GUI thread. If null, the worker runs and its events are dropped.
    explicit wxGUIThread(wxEvtHandler* handler);

    /// Do not destroy a worker that still runs.
    ~wxGUIThread() override;

    /// Makes and starts the thread. Returns the result of Run(). Call this instead of Create() and Run().
    wxThreadError RunThread();

    /// Returns true until StartKill() is called.
    bool DoContinue();

    /// Asks the worker to stop, and returns at once. The request cannot be taken back. Events that are already queued
    /// still arrive.
    void StartKill();

    /// Makes the worker post one event of type @a eventType to the handler when Entry() has returned or thrown an
    /// exception, even after StartKill(). Call SetEndEvent() before RunThread(). By default, no such event is posted.
    ///
    /// The event is a wxCommandEvent. Its int is GetRunNumber(), and its client data is the result of Entry(). When the
    /// event arrives, HasEnded() is true and Wait() returns at once.
    void SetEndEvent(int eventType);

    /// Returns a number that no other worker of the process has. The number is larger than the numbers of all workers
    /// that were made before. If each worker puts its number into its events, the handler can recognise and ignore late
    /// events of an earlier worker.
    int GetRunNumber() const { return m_runNumber; }

    /// @name Posting
    ///
    /// The handler receives a copy of the event on the GUI thread, as a pending event of the toolkit. Each overload of
    /// PostEvent() returns true when the worker may go on: the event was queued, or was dropped because there is no
    /// handler. It returns false when the worker was asked to stop; nothing is queued then.
    ///
    /// A worker that posts events faster than the GUI thread handles them is not slowed down: its events fill the
    /// memory and block the GUI. Report results at intervals, not one by one.
    ///
    /// Client data is passed on as it is, and the library never owns it. If an event is dropped, or is still queued
    /// when its handler is destroyed, its data is not freed.
    ///
    /// A call PostEvent(type, value, 0) is ambiguous: write 0L or nullptr.
    /// @{

    /// Sets the event's int to @a value and posts a copy. The caller keeps the event. After StartKill() the event is
    /// not changed.
    bool PostEvent(wxCommandEvent& event, int value);

    /// Posts a wxCommandEvent of type @a eventType with the int @a value and id 0. Everything else in the event is
    /// empty.
    bool PostEvent(int eventType, int value);
    bool PostEvent(int eventType, int value, long extra);  ///< Does the same with an extra long.
    bool PostEvent(int eventType, int value, void* data);  ///< Does the same with client data.

    /// Posts a copy of the event as it is, even after StartKill(). Call this to report the last result of a stopped
    /// worker. Returns false when there is no handler.
    bool PostResult(const wxCommandEvent& event);

    /// @}

protected:
    wxEvtHandler* const m_handler;  ///< Receives the events; not owned.
    bool m_continue = true;         ///< True until StartKill().

    /// Guards m_continue. The mutex is recursive, so a derived class may hold it during several calls of this class. No
    /// StartKill() then comes between these calls.
    wxMutex m_continueMutex{wxMUTEX_RECURSIVE};

    /// Held while PostEvent(eventType, ...) makes and posts an event. Lock it before m_continueMutex, never after that
    /// mutex.
    wxMutex m_postMutex{wxMUTEX_DEFAULT};

private:
    const int m_runNumber;
};

/// A wxGUIThread whose events all have one type, which is passed to the constructor.
///
/// The PostEvent() of this class hides the PostEvent() of the base class. Otherwise the compiler would choose an
/// overload of the base class for PostEvent(value, number). To post an event of another type, call
/// wxGUIThread::PostEvent(...).
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
///     const std::vector<wxString>& m_lines;  // owned by the handler, which must not change it before Wait() returns
/// };
/// @endcode
///
/// If the handler outlives the worker, events may arrive after the worker is destroyed. The data that an event refers
/// to must therefore belong to the handler or live as long as the handler, like the lines in this example. Do not post
/// client data that points into the worker.
class FITTINGS_API wxGUIThreadEx : public wxGUIThread
{
public:
    /// @param handler see wxGUIThread.
    /// @param eventType the type of every event, for example from wxNewEventType().
    wxGUIThreadEx(wxEvtHandler* handler, int eventType);

    /// Do not destroy a worker that still runs.
    ~wxGUIThreadEx() override;

    /// @name Posting
    ///
    /// These functions do the same as wxGUIThread::PostEvent() with the type that was passed to the constructor.
    /// wxGUIThread describes the results and the ownership of the data. A call PostEvent(value, 0) is ambiguous: write
    /// 0L or nullptr.
    /// @{
    bool PostEvent(int value);              ///< Posts an event with the int @a value.
    bool PostEvent(int value, long extra);  ///< Posts an event with the int @a value and the extra long @a extra.
    bool PostEvent(int value, void* data);  ///< Posts an event with the int @a value and the client data @a data.
    /// @}

protected:
    const int m_eventType;  ///< The type of every event.
};

#endif
