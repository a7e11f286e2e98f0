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

/// Adds up a folder in the background, and shows how far that has come: a bar, numbers and a button that stops it.
class SizesRow : public wxPanel
{
public:
    /// Sums go to @a onNews as they come.
    SizesRow(wxWindow* parent, std::function<void(const SizeNews&)> onNews);

    /// Adds up @a folder; what was under way for another one stops.
    void Start(const std::string& folder);

    /// Waits until the worker has ended, which takes no longer than the call to the file system that it is in. What was
    /// found until then has come; nothing comes later.
    void Stop();

    bool IsRunning() const { return m_worker != nullptr; }

    /// What the numbers say, for a person.
    wxString GetText() const;

    wxButton* GetButton() const { return m_button; }
    wxGauge* GetBar() const { return m_bar; }

private:
    using Clock = std::chrono::steady_clock;

    void OnNews(wxCommandEvent& event);
    void OnButton();
    SizeNews PassOnNews();
    void ShowNumbers(const SizeNews& news, const wxString& state);
    void ShowRunning(bool running);

    std::function<void(const SizeNews&)> m_onNews;
    wxGauge* m_bar;
    wxStaticText* m_text;
    wxButton* m_button;
    std::string m_folder;
    std::unique_ptr<SizeWorker> m_worker;
    int m_number = 0;  ///< Of the worker that counts: events of earlier ones may still come.
    Clock::time_point m_start;
};

}  // namespace gallery

#endif
