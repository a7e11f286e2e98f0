#ifndef FITTINGS_TESTS_DIALOGS_FILE_ANSWER_H_
#define FITTINGS_TESTS_DIALOGS_FILE_ANSWER_H_

#include <functional>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/modalhook.h>
#include <wx/string.h>

class wxWindow;

/// The arguments that a file dialog was made with, and its state when it was about to be shown.
struct AskedFile
{
    wxWindow* parent = nullptr;
    wxString title;
    wxString folder;
    wxString file;
    wxString wildcard;
    long style = 0;
    wxPoint position;
    wxSize size;
    wxString name;

    int filterIndex = -1;         // stays -1 without a wildcard
    std::vector<int> filtersSet;  // by SetFilterIndex() after the dialog was made
    wxString shownFolder;
    std::vector<int> centred;
};

/// Answers file dialogs in place of the user while the object exists. There is only one such object at a time. The
/// dialog's GetPath() returns the path of the answer, whatever GTK's dialog would return.
class FileAnswer : public wxModalDialogHook
{
public:
    FileAnswer(int result, const wxString& path);
    ~FileAnswer() override;

    /// Called when a dialog is about to be shown, before it is answered.
    std::function<void()> whileShown;

    /// Return the arguments and the state of the dialog that was shown last, and the number of dialogs shown.
    const AskedFile& Asked() const { return m_asked; }
    int Shown() const { return m_shown; }

protected:
    int Enter(wxDialog* dialog) override;

private:
    const int m_result;
    AskedFile m_asked;
    int m_shown = 0;
};

#endif
