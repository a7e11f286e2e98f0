#ifndef FITTINGS_THREAD_THREAD_EX_H_
#define FITTINGS_THREAD_THREAD_EX_H_

#include <condition_variable>
#include <functional>
#include <mutex>

#include <wx/thread.h>

#include <fittings/base/export.h>

class wxThreadExImpl;

/// An object that does work on a thread of its own. Its owner makes it, waits for it and destroys it.
///
/// Derive from this class and do the work in Entry(). The result of Entry() is the exit code that Wait() returns.
///
/// @code
/// class Checksum : public wxThreadEx
/// {
/// public:
///     explicit Checksum(const Bytes& bytes) : wxThreadEx(wxTHREAD_JOINABLE), m_bytes(bytes) {}
///     ~Checksum() override { Wait(); }  // wait here: the base class waits only after m_bytes is destroyed
///
///     wxThread::ExitCode Entry() override { return reinterpret_cast<wxThread::ExitCode>(Adler32(m_bytes)); }
///
/// private:
///     const Bytes m_bytes;
/// };
///
/// Checksum checksum(bytes);
/// checksum.Create(0);
/// if (checksum.Run() == wxTHREAD_NO_ERROR)
///     Compare(reinterpret_cast<std::uintptr_t>(checksum.Wait()));
/// @endcode
///
/// The owner's thread makes the object, calls Create(), Run() and Wait(), and destroys the object, in this order. The
/// toolkit must be initialised before the object is made. An object runs only once. If Create() or Run() fails, the
/// object cannot be used again: make another object.
///
/// - The class does not pause the work or end it early: it never calls Pause() or Delete() of the toolkit's thread. The
///   host may call them. In Entry(), wxThread::This() returns that thread, which is detached. Entry() may call its
///   GetId() and TestDestroy().
/// - The destructor waits, but only after the members of the derived class are destroyed. If the thread has not called
///   Entry() by then, the Entry() of the derived class no longer exists, and the process aborts. So call Wait()
///   earlier: in the owner, or in the destructor of the most derived class.
/// - A detached object must outlive its thread: the thread writes into the object when Entry() has returned, and
///   neither Wait() nor the destructor waits for that. So destroy a detached object only when HasEnded() or WaitFor()
///   has returned true, or keep it until the process ends. Do not shut the toolkit down while the thread runs.
/// - Each object makes a thread object of the toolkit, which is freed when the thread ends. If Run() was not called or
///   failed, the toolkit's object stays allocated until the process ends. After Create() without Run(), a waiting
///   thread stays too, and may disturb the toolkit's shutdown. So call Create() only if you then call Run().
class FITTINGS_API wxThreadEx
{
public:
    /// @param kind wxTHREAD_JOINABLE, or wxTHREAD_DETACHED for an object that Wait() and the destructor do not wait
    ///        for.
    explicit wxThreadEx(wxThreadKind kind);

    /// Calls Wait(), unless the object is detached.
    virtual ~wxThreadEx();

    wxThreadEx(const wxThreadEx&) = delete;
    wxThreadEx& operator=(const wxThreadEx&) = delete;

    /// Makes the thread, which then waits for Run().
    ///
    /// @param stackSize is not used: every thread has the toolkit's default stack.
    /// @return wxTHREAD_RUNNING if this object has made a thread before, even if the thread is over. Otherwise the
    ///         result of the toolkit's Create(): wxTHREAD_NO_ERROR, or wxTHREAD_NO_RESOURCE if the system cannot make
    ///         another thread.
    wxThreadError Create(unsigned int stackSize);

    /// Starts Entry() on the thread. Entry() may return before Run() does.
    ///
    /// @return wxTHREAD_RUNNING if the object has run before. Otherwise the result of the toolkit's Run():
    ///         wxTHREAD_NO_ERROR, or another value if the thread could not be started.
    wxThreadError Run();

    /// Waits until Entry() has returned and the thread is over: its thread-local objects are destroyed, and the toolkit
    /// no longer uses the thread.
    ///
    /// A further call returns the same exit code. Only one thread at a time may wait, because only one thread is woken.
    /// No events are handled during the wait: if Entry() waits for the GUI thread or calls Wait() itself, this call
    /// never returns.
    ///
    /// @return the result of Entry(). If the object is detached or was not started, returns (wxThread::ExitCode)-1 at
    ///         once.
    wxThread::ExitCode Wait();

    /// Waits until the thread is over, but at most @a milliseconds. Works for a detached object, too. On the GUI
    /// thread, windows are painted and timers run during the wait. The user's input and the events of workers are
    /// handled after the wait.
    ///
    /// @return HasEnded(). If the object was not started, returns false at once.
    bool WaitFor(unsigned long milliseconds);

    /// Returns true when the thread is over, after Entry() has returned or thrown an exception. Wait() then returns at
    /// once, and the object may be destroyed, even if it is detached. Any thread may call this function.
    bool HasEnded() const;

    /// Does the work. The function is called once, on the new thread, and its result is the exit code.
    ///
    /// No exception may leave the function. If one does, the toolkit's wxApp::OnUnhandledException() is called, the
    /// work counts as finished, and the exit code is (wxThread::ExitCode)-1.
    virtual wxThread::ExitCode Entry() = 0;

private:
    friend class wxThreadExImpl;

    mutable std::mutex m_mutex;           // guards m_finished; once m_finished is true, m_exitCode no longer changes
    std::condition_variable m_condition;  // not a wxCondition, whose timed wait depends on the time of day
    const bool m_detached;
    bool m_running = false;
    bool m_finished = false;
    wxThreadExImpl* const m_impl;
    wxThread::ExitCode m_exitCode;

protected:
    /// Called on the thread with the exit code when Entry() has returned or thrown an exception. The function must not
    /// call HasEnded(), Wait() or WaitFor(): these wait for the function to return. Set m_atEnd before Run().
    std::function<void(wxThread::ExitCode)> m_atEnd;
};

#endif
