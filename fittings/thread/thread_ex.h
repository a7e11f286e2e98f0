#ifndef FITTINGS_THREAD_THREAD_EX_H_
#define FITTINGS_THREAD_THREAD_EX_H_

#include <functional>

#include <wx/thread.h>

#include <fittings/base/export.h>

class wxThreadExImpl;

/// Work on a thread of its own, in an object that its owner makes, waits for and destroys.
///
/// Derive from it and do the work in Entry(); what Entry() returns is the exit code that Wait() gives.
///
/// @code
/// class Checksum : public wxThreadEx
/// {
/// public:
///     explicit Checksum(const Bytes& bytes) : wxThreadEx(wxTHREAD_JOINABLE), m_bytes(bytes) {}
///     ~Checksum() override { Wait(); }  // Entry() uses m_bytes, which are gone when the base's destructor waits
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
/// Construct, Create(), Run(), Wait(), destroy: all of them on one thread, the owner's, once the toolkit is
/// initialised. An object runs once. Where Create() or Run() has failed, it is of no more use: make another one to try
/// again.
///
/// - Nothing here pauses the work or ends it early. Entry() may ask wxThread::This(), the toolkit's detached thread,
///   for its id or TestDestroy(); whether anyone calls that thread's Pause() or Delete() is the host's to see to.
/// - The destructor waits, but only after the derived class's members are gone, and a thread that begins as late as
///   that finds no Entry() to call and aborts the process. So Wait() is to be called before, by the owner or by the
///   destructor of the most derived class.
/// - A detached object must outlive its Entry(): the thread writes into the object when Entry() has returned, and
///   neither Wait() nor the destructor waits for that. No call tells when it is safe, so keep such an object for as
///   long as the process lives. While its thread runs, the toolkit must not be shut down.
/// - The toolkit's thread object behind this one is freed by its own thread when that ends. An object that never ran,
///   or whose Run() failed, leaves it behind for as long as the process lives. After Create() that is a waiting thread,
///   too, which the toolkit may trip over when it shuts down: only create what you run.
class FITTINGS_API wxThreadEx
{
public:
    /// @param kind wxTHREAD_JOINABLE, or wxTHREAD_DETACHED for an object that is never waited for.
    explicit wxThreadEx(wxThreadKind kind);

    /// Waits until Entry() has returned, if the object is not detached and has run.
    virtual ~wxThreadEx();

    wxThreadEx(const wxThreadEx&) = delete;
    wxThreadEx& operator=(const wxThreadEx&) = delete;

    /// Makes the thread, which then waits for Run().
    ///
    /// @param stackSize is not used: every thread has the toolkit's default stack.
    /// @return what the toolkit's Create() says: wxTHREAD_NO_ERROR, or wxTHREAD_NO_RESOURCE when the system has no room
    ///         for a thread. wxTHREAD_RUNNING, and nothing happens, when the thread exists already.
    wxThreadError Create(unsigned int stackSize);

    /// Lets the thread begin with Entry(), which may have returned when this does.
    ///
    /// @return what the toolkit's Run() says: wxTHREAD_NO_ERROR, or another value, and nothing runs.
    ///         wxTHREAD_RUNNING, and nothing happens, when the object has run before.
    wxThreadError Run();

    /// Waits until Entry() has returned and the thread is over: its thread-local objects are destroyed, and the toolkit
    /// uses it no more.
    ///
    /// May be called again and gives the same exit code. Only one thread at a time may be waiting: one is woken. No
    /// events are handled meanwhile, so an Entry() that waits for the GUI thread never returns, and neither does one
    /// that calls Wait() itself.
    ///
    /// @return what Entry() returned; (wxThread::ExitCode)-1 at once when the object is detached, or has not run.
    wxThread::ExitCode Wait();

    /// Waits as Wait() does, but at most so long. On the GUI thread windows are painted meanwhile and timers run; what
    /// a user does and what workers post is handled afterwards.
    ///
    /// @return HasEnded(); false at once when the object has not run.
    bool WaitFor(unsigned long milliseconds);

    /// True once Entry() has returned, or an exception has left it; Wait() then returns at once. Any thread may ask.
    bool HasEnded() const;

    /// The work. Called once, on the new thread; its result is the exit code.
    ///
    /// No exception may leave it. One that does goes to the toolkit's wxApp::OnUnhandledException(), the work counts as
    /// finished, and the exit code is (wxThread::ExitCode)-1.
    virtual wxThread::ExitCode Entry() = 0;

private:
    friend class wxThreadExImpl;

    mutable wxMutex m_mutex{wxMUTEX_DEFAULT};  // guards m_finished and m_exitCode
    wxCondition m_condition{m_mutex};
    const bool m_detached;
    bool m_running = false;
    bool m_finished = false;
    wxThreadExImpl* const m_impl;
    wxThread::ExitCode m_exitCode;

protected:
    /// Called on the thread when Entry() has returned, with the exit code. It must not call HasEnded() or Wait(), which
    /// wait for it. To be set before Run().
    std::function<void(wxThread::ExitCode)> m_atEnd;
};

#endif
