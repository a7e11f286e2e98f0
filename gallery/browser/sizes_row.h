#ifndef FITTINGS_GALLERY_BROWSER_SIZES_ROW_H_
#define FITTINGS_GALLERY_BROWSER_SIZES_ROW_H_

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include <wx/panel.h>

#include <gallery/folders/size_worker.h>

class wxButton;
class wxGauge;
class wxStaticText;

namespace gallery {

/// Adds up the sizes of everything in a folder, in the background. Shows a bar, numbers, and a button that stops the
/// work or starts it again.
class SizesRow : public wxPanel
{
public:
    /// @a onNews is called each time the worker has new results.
    SizesRow(wxWindow* parent, std::function<void(const SizeNews&)> onNews);

    /// Stops adding up the earlier folder, if any, and starts to add up @a folder.
    void Start(const std::string& folder);

    /// Stops the worker and waits until its current call to the file system returns. Then calls the constructor's
    /// onNews once more, with the results that onNews has not received yet. Does nothing if no worker runs.
    void Stop();

    bool IsRunning() const { return m_worker != nullptr; }

    /// Returns the text beside the bar.
    wxString GetText() const;

    wxButton* GetButton() const { return m_button; }
    wxGauge* GetBar() const { return m_bar; }

private:
    using Clock = std::chrono::steady_clock;

    void OnNews(wxCommandEvent& event);
    SizeNews PassOnNews();
    void ShowNumbers(const SizeNews& news, const wxString& state);
    void ShowRunning(bool running);

    std::function<void(const SizeNews&)> m_onNews;
    wxGauge* m_bar;
    wxStaticText* m_text;
    wxButton* m_button;
    std::string m_folder;
    std::unique_ptr<SizeWorker> m_worker;
    int m_number = 0;  ///< The number of the current worker. Events of earlier workers can still arrive.
    Clock::time_point m_start;
};

}  // namespace gallery

#endif
