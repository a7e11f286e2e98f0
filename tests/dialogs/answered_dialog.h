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

/// While the object exists, answers every dialog before the dialog is shown.
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

/// Returns the folder that the dialog shows. Waits until GTK reports one, because the dialog loads its folder in the
/// background.
std::string FolderOf(const wxWindow& dialog);

std::string TitleOf(const wxWindow& dialog);

/// Returns the name that a save dialog proposes.
std::string NameOf(const wxWindow& saveDialog);

wxArrayString PathsOf(const wxFileDialog& dialog);

/// Selects a file in the dialog, and waits until GetPaths() returns that file. Returns wxID_OK.
int Choose(wxFileDialog& dialog, const std::string& path);

/// Calls ShowModal(), and answers the dialog with Choose(). Returns the result of ShowModal().
int ShowAndChoose(wxFileDialog& dialog, const std::string& path);
inline int ShowAndChoose(wxFileDialog&& dialog, const std::string& path)
{
    return ShowAndChoose(dialog, path);
}

/// Shows the dialog on the screen. When @a isReady returns true, accepts the dialog as a user does. Cancels the dialog
/// if it is still open after a minute. Returns the result of ShowModal().
int AcceptWhen(wxFileDialog& dialog, const std::function<bool()>& isReady);

/// Each test starts with empty settings and with an empty folder, m_plain.
class RememberingDialog : public testing::Test
{
protected:
    RememberingDialog();

    /// Returns the user's documents folder, where the dialogs start if nothing is stored.
    static std::string Documents();
    std::string Settings() const { return ReadFile(m_settings / "settings.ini"); }

    const TempUserData m_settings;
    const TempFolder m_folders;
    std::string m_plain;
};

#endif
