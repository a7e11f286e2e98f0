#ifndef FITTINGS_GALLERY_FOLDERS_SIZE_WORKER_H_
#define FITTINGS_GALLERY_FOLDERS_SIZE_WORKER_H_

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include <fittings/thread/gui_thread.h>

#include <gallery/folders/folder_size.h>

namespace gallery {

/// The results of a worker.
struct SizeNews
{
    std::vector<std::pair<std::string, FolderSum>> folders;  ///< Finished since the last TakeNews(), with their sums.
    FolderSum soFar;
    double fraction = 0;  ///< How much is done, from 0 to 1.
    bool done = false;
};

/// Adds up the sizes of a folder and of everything below it, in the background.
///
/// The worker's events contain no results. An event only reports that TakeNews() has new results. No further event is
/// sent until TakeNews() is called.
class SizeWorker : public wxGUIThreadEx, private SizeObserver
{
public:
    /// @a handler receives events of @a eventType. Their int is @a number, which identifies the worker.
    SizeWorker(wxEvtHandler* handler, int eventType, int number, std::string folder);

    /// Stops the work and waits until it has ended.
    ~SizeWorker() override;

    SizeNews TakeNews();

    wxThread::ExitCode Entry() override;

private:
    using Clock = std::chrono::steady_clock;

    void OnSubfolder(const std::string& name, const FolderSum& sum) override;
    bool OnProgress(const FolderSum& soFar, double fraction) override;
    bool Tell(const FolderSum& soFar, double fraction, bool done);

    const int m_number;
    const std::string m_folder;
    Clock::time_point m_nextNews;

    wxMutex m_newsMutex;  ///< Guards the members below.
    SizeNews m_news;
    bool m_told = false;  ///< True from an event to the next TakeNews().
};

}  // namespace gallery

#endif
