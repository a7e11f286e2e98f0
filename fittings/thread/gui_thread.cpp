#include <fittings/thread/gui_thread.h>

#include <atomic>

namespace {

std::atomic<int> g_lastRunNumber = 0;

}  // namespace

wxGUIThread::wxGUIThread(wxEvtHandler* handler)
    : wxThreadEx(wxTHREAD_JOINABLE), m_handler(handler), m_runNumber(++g_lastRunNumber)
{
}

wxGUIThread::~wxGUIThread() = default;

wxThreadError wxGUIThread::RunThread()
{
    Create(0);
    return Run();
}

bool wxGUIThread::DoContinue()
{
    const wxMutexLocker lock(m_continueMutex);
    return m_continue;
}

void wxGUIThread::StartKill()
{
    const wxMutexLocker lock(m_continueMutex);
    m_continue = false;
}

void wxGUIThread::SetEndEvent(int eventType)
{
    m_atEnd = [this, eventType](wxThread::ExitCode exitCode) {
        wxCommandEvent event(eventType);
        event.SetInt(m_runNumber);
        event.SetClientData(exitCode);
        PostResult(event);
    };
}

bool wxGUIThread::PostResult(const wxCommandEvent& event)
{
    if (m_handler)
        m_handler->AddPendingEvent(event);
    return m_handler != nullptr;
}

bool wxGUIThread::PostEvent(wxCommandEvent& event, int value)
{
    if (!DoContinue())
        return false;
    event.SetInt(value);
    if (m_handler)
        m_handler->AddPendingEvent(event);
    return true;
}

bool wxGUIThread::PostEvent(int eventType, int value)
{
    const wxMutexLocker lock(m_postMutex);
    wxCommandEvent event(eventType);
    return PostEvent(event, value);
}

bool wxGUIThread::PostEvent(int eventType, int value, long extra)
{
    const wxMutexLocker lock(m_postMutex);
    wxCommandEvent event(eventType);
    event.SetExtraLong(extra);
    return PostEvent(event, value);
}

bool wxGUIThread::PostEvent(int eventType, int value, void* data)
{
    const wxMutexLocker lock(m_postMutex);
    wxCommandEvent event(eventType);
    event.SetClientData(data);
    return PostEvent(event, value);
}

wxGUIThreadEx::wxGUIThreadEx(wxEvtHandler* handler, int eventType) : wxGUIThread(handler), m_eventType(eventType) {}

wxGUIThreadEx::~wxGUIThreadEx() = default;

bool wxGUIThreadEx::PostEvent(int value)
{
    return wxGUIThread::PostEvent(m_eventType, value);
}

bool wxGUIThreadEx::PostEvent(int value, long extra)
{
    return wxGUIThread::PostEvent(m_eventType, value, extra);
}

bool wxGUIThreadEx::PostEvent(int value, void* data)
{
    return wxGUIThread::PostEvent(m_eventType, value, data);
}
