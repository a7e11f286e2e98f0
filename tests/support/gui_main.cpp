// main() of the test programs with windows: all tests run inside one event loop of one wxApp.

#include <cstdlib>
#include <cstring>

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <wx/init.h>
#include <wx/thread.h>

#include <tests/support/gui.h>

namespace {

// Returns whether windows are laid out from right to left.
bool IsRightToLeft()
{
    const char* const direction = std::getenv("FITTINGS_TEST_DIRECTION");
    return direction && std::strcmp(direction, "rtl") == 0;
}

class FirstThread : public wxThread
{
public:
    FirstThread() : wxThread(wxTHREAD_JOINABLE) {}

private:
    ExitCode Entry() override { return nullptr; }
};

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
        if (IsRightToLeft())
            gtk_widget_set_default_direction(GTK_TEXT_DIR_RTL);
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        // The first frame of a process is placed differently from all later frames, so show a frame before the tests.
        auto* frame = new wxFrame(nullptr, wxID_ANY, "warm-up");
        ShowAndSettle(frame);
        DestroyNow(frame);
        // The first thread makes data that the toolkit keeps for all threads. Run a first thread before the tests. If
        // two threads of a test made the data at the same time, the thread sanitizer would report a false race: the
        // toolkit guards the data, but is built without the sanitizer.
        FirstThread thread;
        thread.Run();
        thread.Wait();
        return RUN_ALL_TESTS();
    }

    // Returns the layout direction of windows that set none.
    wxLayoutDirection GetLayoutDirection() const override
    {
        return IsRightToLeft() ? wxLayout_RightToLeft : wxApp::GetLayoutDirection();
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
