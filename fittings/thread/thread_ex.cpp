#include <fittings/thread/thread_ex.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdint>

#include <pthread.h>

#include <wx/evtloop.h>

namespace {

using Clock = std::chrono::steady_clock;

// The longest time to wait, in milliseconds: about thirty years. Adding it to the current time does not overflow the
// clock.
constexpr std::uint64_t kLongestWait = 1'000'000'000'000;

// The longest time that a wait keeps windows from being painted.
constexpr std::chrono::milliseconds kPaintInterval(20);

void PaintWindows()
{
    wxEventLoopBase* const loop = wxThread::IsMain() ? wxEventLoopBase::GetActive() : nullptr;
    if (loop)
        loop->YieldFor(wxEVT_CATEGORY_UI);
}

// The toolkit's exit codes are numbers stored in pointers. NOLINTNEXTLINE(performance-no-int-to-ptr)
const auto kNoExitCode = reinterpret_cast<wxThread::ExitCode>(std::intptr_t{-1});

}  // namespace

// The toolkit's thread behind a wxThreadEx. Always detached, so that the toolkit deletes it.
class wxThreadExImpl : public wxThread
{
public:
    explicit wxThreadExImpl(wxThreadEx* owner) : wxThread(wxTHREAD_DETACHED), m_owner(owner) {}

private:
    // Reports to the owner that the thread is over, even after an exception. Otherwise Wait() would not return.
    //
    // The C library first destroys a thread's thread-local objects, such as this one, and then the values of its
    // pthread keys, in rounds. The toolkit's values are destroyed in the first round, so End reports in the second.
    // Otherwise a program that ends right after Wait() would shut down the toolkit while the thread still uses it.
    struct End
    {
        explicit End(wxThreadEx* threadOwner) : owner(threadOwner) {}
        ~End() { TellInNextRound(owner); }
        End(const End&) = delete;
        End& operator=(const End&) = delete;

        static void TellInNextRound(wxThreadEx* owner)
        {
            static const pthread_key_t key = NewKey();
            if (pthread_setspecific(key, owner) != 0)
                Tell(owner);
        }

        static pthread_key_t NewKey()
        {
            pthread_key_t key = PTHREAD_KEYS_MAX;  // stays an invalid key if the system has no more keys
            pthread_key_create(&key, [](void* owner) {
                static thread_local int round = 0;
                if (++round < 2)
                    TellInNextRound(static_cast<wxThreadEx*>(owner));
                else
                    Tell(static_cast<wxThreadEx*>(owner));
            });
            return key;
        }

        static void Tell(wxThreadEx* owner)
        {
            // Signal under the lock: once the mutex is free, the owner may destroy the condition and the mutex.
            const std::lock_guard<std::mutex> lock(owner->m_mutex);
            owner->m_finished = true;
            if (owner->m_atEnd)
                owner->m_atEnd(owner->m_exitCode);
            owner->m_condition.notify_one();
        }

        wxThreadEx* const owner;
    };

    ExitCode Entry() override
    {
        static thread_local const End end(m_owner);
        m_owner->m_exitCode = m_owner->Entry();
        return nullptr;
    }

    wxThreadEx* const m_owner;
};

wxThreadEx::wxThreadEx(wxThreadKind kind)
    : m_detached(kind == wxTHREAD_DETACHED), m_impl(new wxThreadExImpl(this)), m_exitCode(kNoExitCode)
{
}

// Does not delete m_impl: the toolkit deletes it when the thread ends.
wxThreadEx::~wxThreadEx()
{
    if (!m_detached)
        Wait();
}

wxThreadError wxThreadEx::Create(unsigned int WXUNUSED(stackSize))
{
    // Do not make a thread twice. Once the thread runs, m_impl may have been deleted. After Create() but before Run(),
    // the toolkit would make a second thread for m_impl, and that thread would outlive m_impl.
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
    std::unique_lock<std::mutex> lock(m_mutex);
    // Wait in a loop: a condition may wake up without a signal.
    while (!m_finished)
        m_condition.wait(lock);
    return m_exitCode;
}

bool wxThreadEx::WaitFor(unsigned long milliseconds)
{
    if (!m_running)
        return false;
    const auto deadline = Clock::now() + std::chrono::milliseconds(std::min<std::uint64_t>(milliseconds, kLongestWait));
    for (;;) {
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_condition.wait_until(lock, std::min(deadline, Clock::now() + kPaintInterval),
                                   [this] { return m_finished; });
            if (m_finished || Clock::now() >= deadline)
                return m_finished;
        }
        PaintWindows();
    }
}

bool wxThreadEx::HasEnded() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_finished;
}
