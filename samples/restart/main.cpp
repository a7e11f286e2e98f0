// Adds up the numbers from 1 to the number in the field, on a thread. Each change of the field starts a new thread.

#include <optional>

#include <wx/wx.h>

#include <fittings/thread/gui_thread.h>

wxDEFINE_EVENT(EVT_ADDED_UP, wxCommandEvent);  // the int is the worker's run number, the extra long is the sum

class Adder final : public wxGUIThreadEx
{
public:
    Adder(wxEvtHandler* handler, long last) : wxGUIThreadEx(handler, EVT_ADDED_UP), m_last(last) {}
    ~Adder() override
    {
        StartKill();  // asks the thread to stop
        Wait();       // waits until the thread has ended, because Entry() uses the members below
    }
    wxThread::ExitCode Entry() override
    {
        long sum = 0;
        for (long number = 1; number <= m_last && DoContinue(); ++number)
            sum += number;
        PostEvent(GetRunNumber(), sum);  // does nothing after StartKill()
        return nullptr;
    }

private:
    const long m_last;
};

class SumFrame : public wxFrame
{
public:
    SumFrame() : wxFrame(nullptr, wxID_ANY, "Sum")
    {
        (new wxTextCtrl(this, wxID_ANY))->Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
            m_adder.emplace(this, wxAtol(event.GetString()));  // stops the earlier worker
            SetTitle(m_adder->RunThread() == wxTHREAD_NO_ERROR ? "Adding up" : "No thread to add up on");
        });
        Bind(EVT_ADDED_UP, [this](wxCommandEvent& event) {
            if (event.GetInt() == m_adder->GetRunNumber())  // other results come from stopped workers
                SetTitle(wxString::Format("The sum is %ld", event.GetExtraLong()));
        });
    }

private:
    std::optional<Adder> m_adder;
};

class SumApp : public wxApp
{
    bool OnInit() override { return (new SumFrame)->Show(); }
};
wxIMPLEMENT_APP(SumApp);
