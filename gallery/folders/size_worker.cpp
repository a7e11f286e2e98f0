#include <gallery/folders/size_worker.h>

namespace gallery {

namespace {

// The time between two reports of progress. A person would not see more frequent reports.
constexpr std::chrono::milliseconds kNewsInterval(40);

}  // namespace

SizeWorker::SizeWorker(wxEvtHandler* handler, int eventType, int number, std::string folder)
    : wxGUIThreadEx(handler, eventType), m_number(number), m_folder(std::move(folder))
{
}

SizeWorker::~SizeWorker()
{
    StartKill();
    Wait();
}

SizeNews SizeWorker::TakeNews()
{
    const wxMutexLocker lock(m_newsMutex);
    m_told = false;
    return std::exchange(m_news, {{}, m_news.soFar, m_news.fraction, m_news.done});
}

wxThread::ExitCode SizeWorker::Entry()
{
    m_nextNews = Clock::now();
    const FolderSum sum = SumFolder(m_folder, *this);
    if (DoContinue())
        Tell(sum, 1, true);
    return nullptr;
}

void SizeWorker::OnSubfolder(const std::string& name, const FolderSum& sum)
{
    const wxMutexLocker lock(m_newsMutex);
    m_news.folders.emplace_back(name, sum);
}

bool SizeWorker::OnProgress(const FolderSum& soFar, double fraction)
{
    const Clock::time_point now = Clock::now();
    if (now < m_nextNews)
        return DoContinue();
    m_nextNews = now + kNewsInterval;
    return Tell(soFar, fraction, false);
}

bool SizeWorker::Tell(const FolderSum& soFar, double fraction, bool done)
{
    {
        const wxMutexLocker lock(m_newsMutex);
        m_news.soFar = soFar;
        m_news.fraction = fraction;
        m_news.done = done;
        if (std::exchange(m_told, true))
            return DoContinue();
    }
    return PostEvent(m_number);
}

}  // namespace gallery
