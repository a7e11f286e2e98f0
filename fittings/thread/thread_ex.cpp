#include <fittings/thread/thread_ex.h>

#include <algorithm>
#include <chrono>
#include <cstdint>

#include <wx/evtloop.h>

namespace {

using Clock = std::chrono::steady_clock;

// The longest time that a wait keeps windows from being painted.
constexpr std::chrono::milliseconds kPaintInterval(20);

void PaintWindows()
{
    wxEventLoopBase* const loop = wxThread::IsMain() ? wxEventLoopBase::GetActive() : nullptr;
    if (loop)
        loop->YieldFor(wxEVT_CATEGORY_UI);
}

// The toolkit's exit codes are pointers that need not point. NOLINTNEXTLINE(performance-no-int-to-ptr)
const auto kNoExitCode = reinterpret_cast<wxThread::ExitCode>(std::intptr_t{-1});

}  // namespace

// The toolkit's thread behind a wxThreadEx. Always detached, so that the toolkit deletes it.
class wxThreadExImpl : public wxThread
{
public:
    explicit wxThreadExImpl(wxThreadEx* owner) : wxThread(wxTHREAD_DETACHED), m_owner(owner) {}

private:
    // Tells the owner that the thread is over, also after an exception: Wait() must not hang.
    struct End
    {
        explicit End(wxThreadEx* threadOwner) : owner(threadOwner) {}
        ~End()
        {
            // Signal under the lock: once it is free, the owner may destroy the condition and the mutex.
            const wxMutexLocker lock(owner->m_mutex);
            owner->m_exitCode = exitCode;
            owner->m_finished = true;
            if (owner->m_atEnd)
                owner->m_atEnd(exitCode);
            owner->m_condition.Signal();
        }
        End(const End&) = delete;
        End& operator=(const End&) = delete;

        wxThreadEx* const owner;
        ExitCode exitCode = kNoExitCode;
    };

    ExitCode Entry() override
    {
        // Thread-local, so that it is destroyed after the toolkit's last use of the thread. Otherwise a program that
        // ends right after Wait() would shut down the toolkit while the thread still uses it, and crash.
        static thread_local End end(m_owner);
        end.exitCode = m_owner->Entry();
        return nullptr;
    }

    wxThreadEx* const m_owner;
};

wxThreadEx::wxThreadEx(wxThreadKind kind) : m_detached(kind == wxTHREAD_DETACHED), m_impl(new wxThreadExImpl(this)) {}

// The toolkit deletes the implementation at the end of its thread.
wxThreadEx::~wxThreadEx()
{
    if (!m_detached)
        Wait();
}

wxThreadError wxThreadEx::Create(unsigned int WXUNUSED(stackSize))
{
    // Once the thread runs, the implementation may be gone. Before that, the toolkit would make a second thread for it,
    // which would outlive it.
    if (m_running || m_impl->GetId() != 0)
        return wxTHREAD_RUNNING;
    return m_impl->Create(0);
}

wxThreadError wxThreadEx::Run()
{
    if (m_running)
        return wxTHREAD_RUNNING;
    const wxThreadError error = m_impl->Run();
    m_running = error == wxTHREAD_NO_ERROR;
    return error;
}

wxThread::ExitCode wxThreadEx::Wait()
{
    if (m_detached || !m_running)
        return kNoExitCode;
    const wxMutexLocker lock(m_mutex);
    // A condition may wake up without a signal.
    while (!m_finished)
        m_condition.Wait();
    return m_exitCode;
}

bool wxThreadEx::WaitFor(unsigned long milliseconds)
{
    if (!m_running)
        return false;
    const auto deadline = Clock::now() + std::chrono::milliseconds(milliseconds);
    for (;;) {
        {
            const wxMutexLocker lock(m_mutex);
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
            if (!m_finished && left.count() > 0)
                m_condition.WaitTimeout(static_cast<unsigned long>(std::min(left, kPaintInterval).count()));
            if (m_finished || Clock::now() >= deadline)
                return m_finished;
        }
        PaintWindows();
    }
}

bool wxThreadEx::HasEnded() const
{
    const wxMutexLocker lock(m_mutex);
    return m_finished;
}
