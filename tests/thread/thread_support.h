#ifndef FITTINGS_TESTS_THREAD_THREAD_SUPPORT_H_
#define FITTINGS_TESTS_THREAD_THREAD_SUPPORT_H_

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <fstream>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <sys/syscall.h>
#include <unistd.h>

#include <wx/event.h>
#include <wx/thread.h>

#include <fittings/thread/gui_thread.h>
#include <fittings/thread/thread_ex.h>
#include <tests/support/becomes.h>
#include <tests/support/patience.h>

inline wxThread::ExitCode Code(std::intptr_t number)
{
    return reinterpret_cast<wxThread::ExitCode>(number);  // NOLINT(performance-no-int-to-ptr)
}

/// An event that happens once and that another thread can wait for.
class Signal
{
public:
    void Set()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_set = true;
        m_condition.notify_all();
    }

    bool IsSet()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_set;
    }

    /// Waits for the event. Returns false if the event does not happen before the deadline.
    bool Wait()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_condition.wait_for(lock, Patience() * std::chrono::seconds(30), [this] { return m_set; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_set = false;
};

inline std::string TaskFile(pid_t thread, const char* name)
{
    return "/proc/self/task/" + std::to_string(thread) + "/" + name;
}

/// Waits until the thread sleeps on a lock or condition and stays asleep. Returns false if that does not happen before
/// the deadline of Becomes().
inline bool IsBlocked(pid_t thread)
{
    std::string last;
    int same = 0;
    return Becomes([&] {
        std::string now;
        std::getline(std::ifstream(TaskFile(thread, "syscall")), now);
        const bool asleep = now.compare(0, 4, std::to_string(SYS_futex) + " ") == 0;
        same = asleep && now == last ? same + 1 : 0;
        last = now;
        return same >= 5;
    });
}

/// Waits until the system no longer knows the thread. Returns false if that does not happen before the deadline of
/// Becomes().
inline bool HasEnded(pid_t thread)
{
    return Becomes([&] { return access(TaskFile(thread, "").c_str(), F_OK) != 0; });
}

/// A thread of the test. The destructor waits for its end.
class Helper
{
public:
    explicit Helper(std::function<void()> work)
        : m_thread([this, work = std::move(work)] {
              m_id = gettid();
              m_started.Set();
              work();
              m_done.Set();
          })
    {
        m_started.Wait();
    }
    ~Helper() { m_thread.join(); }

    bool IsBlocked() const { return ::IsBlocked(m_id); }
    bool IsDone() { return m_done.IsSet(); }
    bool Ends() { return m_done.Wait(); }

private:
    std::atomic<pid_t> m_id{0};
    Signal m_started;
    Signal m_done;
    std::thread m_thread;
};

/// A thread object of class @a Base, which gets all arguments but the last. The last argument is the work.
template <typename Base>
class Working : public Base
{
public:
    using Work = std::function<wxThread::ExitCode(Working& self)>;

    template <typename Argument, typename Function>
    Working(Argument argument, Function work) : Base(argument), m_work(ReturningACode(std::move(work)))
    {
    }

    template <typename Function>
    Working(wxEvtHandler* handler, int eventType, Function work)
        : Base(handler, eventType), m_work(ReturningACode(std::move(work)))
    {
    }

    wxThread::ExitCode Entry() override
    {
        // Copy the work: if a test does not call Wait(), m_work is destroyed before the base's destructor waits.
        const Work work = m_work;
        thread = gettid();
        started.Set();
        return work(*this);
    }

    Signal started;
    std::atomic<pid_t> thread{0};

private:
    /// Work that returns nothing ends with the code 0.
    template <typename Function>
    static Work ReturningACode(Function work)
    {
        if constexpr (std::is_void_v<std::invoke_result_t<Function&, Working&>>)
            return [work = std::move(work)](Working& self) mutable {
                work(self);
                return Code(0);
            };
        else
            return work;
    }

    Work m_work;
};

/// A thread object that runs from its construction on.
class Running : public Working<wxThreadEx>
{
public:
    template <typename Function>
    explicit Running(Function work) : Working(wxTHREAD_JOINABLE, std::move(work))
    {
        Create(0);
        Run();
    }
};

/// A running thread object. Its work ends with the code 42 when the test sets @a go or destroys this object.
struct HeldThread
{
    ~HeldThread() { go.Set(); }

    Signal go;
    Running thread{[this](auto&) {
        go.Wait();
        return Code(42);
    }};
};

/// An event as a handler received it.
struct Event
{
    int type;
    int id;
    wxObject* object;
    wxString string;
    int value;
    long extra;
    void* data;
    wxClientData* clientObject;

    bool operator==(const Event& other) const
    {
        return type == other.type && id == other.id && object == other.object && string == other.string &&
               value == other.value && extra == other.extra && data == other.data && clientObject == other.clientObject;
    }
};

inline std::ostream& operator<<(std::ostream& stream, const Event& event)
{
    return stream << "type " << event.type << " id " << event.id << " object " << event.object << " string '"
                  << event.string << "' value " << event.value << " extra " << event.extra << " data " << event.data
                  << " client object " << event.clientObject;
}

inline Event Plain(int type, int value, long extra = 0, void* data = nullptr)
{
    return {type, 0, nullptr, wxString(), value, extra, data, nullptr};
}

/// Records the events that it receives.
class Recorder : public wxEvtHandler
{
public:
    bool ProcessEvent(wxEvent& event) override
    {
        allOnGuiThread = allOnGuiThread && wxThread::IsMain();
        if (const auto* command = dynamic_cast<wxCommandEvent*>(&event))
            events.push_back({command->GetEventType(), command->GetId(), command->GetEventObject(),
                              command->GetString(), command->GetInt(), command->GetExtraLong(),
                              command->GetClientData(), command->GetClientObject()});
        return true;
    }

    std::vector<Event> events;
    bool allOnGuiThread = true;
};

using Events = std::vector<Event>;

#endif
