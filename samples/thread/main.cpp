// Counts primes on a thread. The window shows the progress, and can be closed at any time.

#include <wx/wx.h>

#include <fittings/thread/gui_thread.h>

wxDEFINE_EVENT(EVT_COUNTED, wxCommandEvent);  // the int is the percentage done, the extra long is the number of primes

static bool IsPrime(int n)
{
    int divisor = 2;
    while (divisor * divisor <= n && n % divisor != 0)
        ++divisor;
    return divisor * divisor > n;
}

class PrimeCounter : public wxGUIThreadEx
{
    using wxGUIThreadEx::wxGUIThreadEx;
    wxThread::ExitCode Entry() override
    {
        long found = 0;
        for (int n = 2; n <= 1000000; ++n) {
            found += IsPrime(n) ? 1 : 0;
            if (n % 10000 == 0 && !PostEvent(n / 10000, found))
                break;  // asked to stop
        }
        return nullptr;
    }
};

class PrimesFrame : public wxFrame
{
public:
    PrimesFrame() : wxFrame(nullptr, wxID_ANY, "Primes"), m_counter(this, EVT_COUNTED)
    {
        auto* gauge = new wxGauge(this, wxID_ANY, 100);
        Bind(EVT_COUNTED, [this, gauge](wxCommandEvent& event) {
            gauge->SetValue(event.GetInt());
            SetTitle(wxString::Format("%ld primes, %d %% done", event.GetExtraLong(), event.GetInt()));
        });
        SetTitle(m_counter.RunThread() == wxTHREAD_NO_ERROR ? "Counting" : "No thread to count on");
    }
    ~PrimesFrame() override
    {
        m_counter.StartKill();  // asks the thread to stop
        m_counter.Wait();       // waits until the thread has ended, before the window is destroyed
    }

private:
    PrimeCounter m_counter;
};

class PrimesApp : public wxApp
{
    bool OnInit() override { return (new PrimesFrame)->Show(); }
};
wxIMPLEMENT_APP(PrimesApp);
