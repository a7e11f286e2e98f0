// main() of the test programs with windows: all tests run inside one event loop of one wxApp.

#include <gtest/gtest.h>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/init.h>

#include <tests/support/gui.h>

namespace {

class TestApp : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("fittings-test");
        SetExitOnFrameDelete(false);
        return true;
    }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        // The first frame of a process is placed unlike all later ones.
        auto* frame = new wxFrame(nullptr, wxID_ANY, "warm-up");
        ShowAndSettle(frame);
        frame->Destroy();
        PumpPending();
        return RUN_ALL_TESTS();
    }

    void OnAssertFailure(const wxChar* file, int line, const wxChar* function, const wxChar* condition,
                         const wxChar* message) override
    {
        if (!NoteAssertion())
            ADD_FAILURE() << "assertion " << wxString(condition) << " in " << wxString(function) << " at "
                          << wxString(file) << ":" << line << ": " << wxString(message);
    }
};

}  // namespace

wxIMPLEMENT_APP_NO_MAIN(TestApp);

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    return wxEntry(argc, argv);
}
