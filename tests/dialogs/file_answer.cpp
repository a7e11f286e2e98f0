#include <tests/dialogs/file_answer.h>

#include <gtest/gtest.h>
#include <wx/filedlg.h>

#include <tests/dialogs/centring.h>
#include <tests/support/replaced_function.h>

namespace {

// This file replaces functions of wxFileDialog. The constructor is replaced because the toolkit has no getters for some
// of its arguments. GetPath() is replaced because GTK's dialog does not always return the path that was set.
std::vector<AskedFile> g_made;
wxString g_path;

}  // namespace

FileAnswer::FileAnswer(int result, const wxString& path) : m_result(result)
{
    g_made.clear();
    g_path = path;
    CentredDialogs().clear();
    Register();
}

FileAnswer::~FileAnswer()
{
    g_path.clear();
}

int FileAnswer::Enter(wxDialog* dialog)
{
    ++m_shown;
    auto* const asked = dynamic_cast<wxFileDialog*>(dialog);
    if (!asked || g_made.size() != 1) {
        ADD_FAILURE() << "not one file dialog";
        return wxID_CANCEL;
    }
    m_asked = g_made[0];
    g_made.clear();
    if (!m_asked.wildcard.empty())
        m_asked.filterIndex = asked->GetFilterIndex();
    m_asked.shownFolder = asked->GetDirectory();
    m_asked.centred.swap(CentredDialogs());
    if (whileShown)
        whileShown();
    return m_result;
}

// Replaces the toolkit's constructor: creates the dialog, and records the arguments.

wxFileDialog::wxFileDialog(wxWindow* parent, const wxString& title, const wxString& folder, const wxString& file,
                           const wxString& wildcard, long style, const wxPoint& position, const wxSize& size,
                           const wxString& name)
{
    AskedFile made;
    made.parent = parent;
    made.title = title;
    made.folder = folder;
    made.file = file;
    made.wildcard = wildcard;
    made.style = style;
    made.position = position;
    made.size = size;
    made.name = name;
    Create(parent, title, folder, file, wildcard, style, position, size, name);
    g_made.push_back(made);
}

// Replaces the toolkit's function: records the index, and calls the original. Calls that the toolkit makes while it
// creates the dialog are not recorded, because g_made is still empty then.
void wxFileDialog::SetFilterIndex(int index)
{
    if (!g_made.empty()) {
        EXPECT_TRUE(CentredDialogs().empty()) << "the filter was chosen after the dialog was centred";
        g_made.back().filtersSet.push_back(index);
    }
    static const auto original = ReplacedFunction<void(wxFileDialog*, int)>("_ZN12wxFileDialog14SetFilterIndexEi");
    original(this, index);
}

wxString wxFileDialog::GetPath() const
{
    return g_path;
}
