#ifndef FITTINGS_TESTS_DIALOGS_FILE_ANSWER_H_
#define FITTINGS_TESTS_DIALOGS_FILE_ANSWER_H_

#include <functional>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/modalhook.h>
#include <wx/string.h>

class wxWindow;

/// What a file dialog was made with, and what it was when it was to be shown.
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

    int filterIndex = -1;         // none where there is no wildcard
    std::vector<int> filtersSet;  // by SetFilterIndex() once it was made
    wxString shownFolder;
    std::vector<int> centred;
};

/// Answers file dialogs in place of the user for as long as it lives, one such object at a time. The path is what the
/// dialog's GetPath() gives, whether GTK's dialog could be brought to give it or not.
class FileAnswer : public wxModalDialogHook
{
public:
    FileAnswer(int result, const wxString& path);
    ~FileAnswer() override;

    /// Done when a dialog is to be shown, before the answer.
    std::function<void()> whileShown;

    /// The dialog that was shown last, and how many were.
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
