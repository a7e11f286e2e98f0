#include <gtest/gtest.h>

#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/modalhook.h>
#include <wx/timer.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/folder_dialog.h>
#include <tests/accessibility/accessibles.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

namespace {

// Waits for a file or folder dialog to open, reads its accessible object, and cancels the dialog.
class CancellingReader : public wxModalDialogHook, public wxTimer
{
public:
    CancellingReader() { Register(); }

    Accessible read;

protected:
    int Enter(wxDialog* dialog) override
    {
        m_dialog = dialog;
        Start(20);
        return wxID_NONE;
    }

    void Notify() override
    {
        // EndModal() needs a modal dialog, but a file dialog handles timer events even before it is modal.
        if (!m_dialog->IsModal())
            return;
        Stop();
        EXPECT_TRUE(PumpUntil([&] {
            read = ReadFirst("file chooser");
            return read.showing;
        }));
        m_dialog->EndModal(wxID_CANCEL);
    }

private:
    wxDialog* m_dialog = nullptr;
};

class DialogForAScreenReader : public testing::Test
{
protected:
    DialogForAScreenReader() : frame(new wxFrame(nullptr, wxID_ANY, "Drawing")) { ShowAndSettle(frame); }

    OwnedWindow<wxFrame> frame;
    CancellingReader reader;
};

TEST_F(DialogForAScreenReader, IsNamedByTheMessageOfAFolderDialog)
{
    wxFolderDlg::DoModal(frame, L"/usr", L"Where the pictures are");
    EXPECT_EQ(reader.read.name, "Where the pictures are");
}

TEST_F(DialogForAScreenReader, IsNamedByTheTitleOfASaveDialog)
{
    CQVFileDialogI::LaunchSaveDialog(frame, L"txt", L"Texts (*.txt)|*.txt", L"Save the drawing", L"/usr/", L"drawing");
    EXPECT_EQ(reader.read.name, "Save the drawing");
}

}  // namespace
