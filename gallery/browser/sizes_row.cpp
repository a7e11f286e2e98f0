#include <gallery/browser/sizes_row.h>

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <gallery/folders/native_text.h>
#include <gallery/pages/page_layout.h>

namespace gallery {

wxDEFINE_EVENT(EVT_SIZE_NEWS, wxCommandEvent);

namespace {

constexpr int kBarRange = 1000;

}  // namespace

SizesRow::SizesRow(wxWindow* parent, std::function<void(const SizeNews&)> onNews)
    : wxPanel(parent), m_onNews(std::move(onNews))
{
    SetName("Sizes");
    m_bar = new wxGauge(this, wxID_ANY, kBarRange, wxDefaultPosition, wxSize(FromDIP(140), -1), wxGA_SMOOTH);
    m_bar->SetName("Progress");
    m_text =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxST_ELLIPSIZE_END | wxST_NO_AUTORESIZE);
    m_text->SetName("Sum");
    BeginAtTheStart(m_text);
    m_button = new wxButton(this, wxID_ANY, "S&top");
    m_button->SetToolTip("Stop or start adding up what is below this folder");

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const int gap = FromDIP(6);
    row->Add(m_bar, wxSizerFlags().CentreVertical().Border(wxLEFT, gap));
    row->Add(m_text, wxSizerFlags(1).CentreVertical().Border(wxLEFT, gap));
    row->Add(m_button, wxSizerFlags().CentreVertical().Border(wxALL, gap));
    SetSizer(row);

    Bind(EVT_SIZE_NEWS, &SizesRow::OnNews, this);
    m_button->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        if (IsRunning())
            Stop();
        else
            Start(m_folder);
    });
}

void SizesRow::Start(const std::string& folder)
{
    m_worker.reset();
    m_folder = folder;
    m_worker = std::make_unique<SizeWorker>(this, EVT_SIZE_NEWS, ++m_number, folder);
    m_start = Clock::now();
    ShowNumbers({}, wxString());
    ShowRunning(true);
    if (m_worker->RunThread() != wxTHREAD_NO_ERROR) {
        m_worker.reset();
        m_text->SetLabelText("No thread could be started to add up this folder");
        ShowRunning(false);
    }
}

void SizesRow::Stop()
{
    if (!m_worker)
        return;
    m_worker->StartKill();
    m_worker->Wait();
    ShowNumbers(PassOnNews(), "stopped");
    m_worker.reset();
    ShowRunning(false);
}

wxString SizesRow::GetText() const
{
    return m_text->GetLabelText();
}

void SizesRow::OnNews(wxCommandEvent& event)
{
    if (!m_worker || event.GetInt() != m_number)
        return;
    const SizeNews news = PassOnNews();
    ShowNumbers(news, news.done ? "done" : wxString());
    if (news.done) {
        m_worker.reset();
        ShowRunning(false);
    }
}

SizeNews SizesRow::PassOnNews()
{
    SizeNews news = m_worker->TakeNews();
    m_onNews(news);
    return news;
}

// Shows a text such as "8.7 GB in 171,661 items, 540,000 a second", and the progress in the bar.
void SizesRow::ShowNumbers(const SizeNews& news, const wxString& state)
{
    const double seconds = std::max(std::chrono::duration<double>(Clock::now() - m_start).count(), 1e-3);
    const auto perSecond = static_cast<std::uint64_t>(static_cast<double>(news.soFar.items) / seconds);
    wxString text;
    text << HumanSize(news.soFar.bytes) << " in " << GroupedNumber(news.soFar.items) << " items, "
         << GroupedNumber(perSecond) << " a second";
    if (news.soFar.unreadable > 0)
        text << ", " << GroupedNumber(news.soFar.unreadable) << " unreadable";
    if (!state.empty())
        text << L" \u2013 " << state;
    m_text->SetLabelText(text);
    m_bar->SetValue(static_cast<int>(news.fraction * kBarRange));
}

void SizesRow::ShowRunning(bool running)
{
    m_bar->Show(running);
    m_button->SetLabel(running ? "S&top" : "Add &up");
    Layout();
}

}  // namespace gallery
