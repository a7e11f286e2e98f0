#ifndef FITTINGS_TESTS_DIALOGS_ANSWERED_DIALOG_H_
#define FITTINGS_TESTS_DIALOGS_ANSWERED_DIALOG_H_

#include <functional>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/arrstr.h>
#include <wx/filedlg.h>
#include <wx/modalhook.h>

#include <tests/support/temp_folder.h>

/// Answers every dialog before it is shown, while the object exists.
class Answer : public wxModalDialogHook
{
public:
    explicit Answer(std::function<int(wxDialog*)> answer) : m_answer(std::move(answer)) { Register(); }

protected:
    int Enter(wxDialog* dialog) override { return m_answer(dialog); }

private:
    const std::function<int(wxDialog*)> m_answer;
};

GtkFileChooser* ChooserOf(const wxWindow& dialog);

/// Returns the folder that the dialog shows. Waits for that folder, because the dialog loads it in the background.
std::string FolderOf(const wxWindow& dialog);

std::string TitleOf(const wxWindow& dialog);

/// Returns the name that a save dialog proposes.
std::string NameOf(const wxWindow& saveDialog);

wxArrayString PathsOf(const wxFileDialog& dialog);

/// Makes the dialog choose a file, and waits until it reports that file. Returns wxID_OK.
int Choose(wxFileDialog& dialog, const std::string& path);

/// Calls ShowModal(), chooses the file as the answer, and returns the result of ShowModal().
int ShowAndChoose(wxFileDialog& dialog, const std::string& path);
inline int ShowAndChoose(wxFileDialog&& dialog, const std::string& path)
{
    return ShowAndChoose(dialog, path);
}

/// Shows the dialog on the screen. When the condition becomes true, accepts the dialog as a user does. If the dialog
/// does not close in time, cancels the dialog.
int AcceptWhen(wxFileDialog& dialog, const std::function<bool()>& isReady);

/// Settings that are empty at first, and a folder to choose from.
class RememberingDialog : public testing::Test
{
protected:
    RememberingDialog();

    /// Returns the user's documents folder, which contains the program's folder.
    static std::string Documents();
    std::string Settings() const { return ReadFile(m_settings / "settings.ini"); }

    const TempUserData m_settings;
    const TempFolder m_folders;
    std::string m_plain;
};

#endif
