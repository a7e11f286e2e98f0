#ifndef FITTINGS_TESTS_DIALOGS_FILE_ANSWER_H_
#define FITTINGS_TESTS_DIALOGS_FILE_ANSWER_H_

#include <functional>
#include <utility>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/modalhook.h>
#include <wx/string.h>

class wxWindow;

/// A folder, and the name of a file in that folder.
using FilePlace = std::pair<wxString, wxString>;

/// The arguments of a file dialog's constructor, and the dialog's state just before the dialog was answered.
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
    std::vector<int> filtersSet;  // the arguments of SetFilterIndex() after the construction
    wxString shownFolder;
    std::vector<int> centred;

    FilePlace Place() const { return {folder, file}; }
};

/// While the object exists, answers file dialogs in place of the user. Only one such object may exist at a time.
/// GetPath() of the dialogs returns the path of the answer, whatever GTK's dialog would return.
class FileAnswer : public wxModalDialogHook
{
public:
    FileAnswer(int result, const wxString& path);
    ~FileAnswer() override;

    /// Called just before a dialog is answered.
    std::function<void()> whileShown;

    /// Returns the arguments and the state of the dialog that was answered last.
    const AskedFile& Asked() const { return m_asked; }

    /// Returns how many dialogs have been answered.
    int Shown() const { return m_shown; }

protected:
    int Enter(wxDialog* dialog) override;

private:
    const int m_result;
    AskedFile m_asked;
    int m_shown = 0;
};

#endif
