#include <fittings/dialogs/remembering_dialogs.h>

#include <cstddef>
#include <string>

#include <fnmatch.h>
#include <gtk/gtk.h>
#include <wx/arrstr.h>
#include <wx/filename.h>

#include <fittings/dialogs/file_dialog_p.h>
#include <fittings/dialogs/folder_dialog_p.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

namespace {

constexpr wchar_t kLastFiltersSection[] = L"LastFilters";

// Returns the remembered folder, or the user's documents folder when none is remembered. If this folder cannot be read,
// returns the nearest folder above it that can be read.
wxString StartFolder(const wxString& remembered)
{
    if (remembered.StartsWith("/"))
        return fittings::NearestThatCanBeShown(remembered);
    // The application's own folder is in the user's documents folder.
    wxFileName documents = wxFileName::DirName(std_file_paths::GetAppFolderPath(L""));
    documents.RemoveLastDir();
    return fittings::NearestThatCanBeShown(documents.GetPath());
}

wxArrayString PatternsOf(const wxString& wildcard)
{
    wxArrayString descriptions;
    wxArrayString patterns;
    wxParseCommonDialogsFilter(wildcard, descriptions, patterns);
    return patterns;
}

// Returns whether GTK's dialog shows the name while @a filter is selected. A filter may contain several patterns, such
// as "*.csv;*.tsv".
bool Shows(const wxString& filter, const wxString& name)
{
    for (const wxString& pattern : wxSplit(filter, ';', '\0')) {
        if (fnmatch(pattern.utf8_str(), name.utf8_str(), 0) == 0)
            return true;
    }
    return false;
}

int FilterFor(const wxArrayString& filters, const wxString& remembered, const wxString& name)
{
    const int index = filters.Index(remembered);
    if (index != wxNOT_FOUND)
        return index;
    for (std::size_t i = 0; i < filters.size() && name.Contains("."); ++i) {
        if (Shows(filters[i], name))
            return static_cast<int>(i);
    }
    return 0;
}

wxString FileName(const wxString& path)
{
    return path.AfterLast('/');
}

template <typename Dialog>
wxString Chosen(const Dialog& dialog, int multiple)
{
    if (!dialog.HasFlag(multiple))
        return dialog.GetPath();
    wxArrayString paths;
    dialog.GetPaths(paths);
    return paths.empty() ? wxString() : paths.back();
}

}  // namespace

wxRememberingFileDialog::wxRememberingFileDialog(wxWindow* parent, const wxString& entry, const wxString& message,
                                                 const wxString& wildcard, long style, const wxString& defaultName)
{
    Create(parent, entry, message, wildcard, style, defaultName);
}

bool wxRememberingFileDialog::Create(wxWindow* parent, const wxString& entry, const wxString& message,
                                     const wxString& wildcard, long style, const wxString& defaultName)
{
    m_entry = entry;
    const std::string key = file_util_ex::ConvertToUTF8(entry.ToStdWstring());
    const wxString last = fittings::LoadLastFile(key.c_str());
    const wxString folder = StartFolder(last.Left(last.length() - FileName(last).length()));
    if (!wxFileDialog::Create(parent, message, folder, wxString(), wildcard, style))
        return false;

    wxString name = FileName(defaultName.empty() ? last : defaultName);
    const wxArrayString filters = PatternsOf(GetWildcard());
    const int filter = FilterFor(filters, CLocalRegStore::GetString(kLastFiltersSection, entry.wc_str(), L""), name);
    // Set the name only now: wxFileDialog::Create() would give it the extension of the first filter.
    const wxString& pattern = filters[static_cast<std::size_t>(filter)];
    if (!defaultName.empty() && !name.empty())
        name = AppendExtension(name, pattern);
    // In a dialog to open a file, set the name only if the file exists and the filter shows it. If a selected file is
    // hidden by the filter, GTK's dialog drops the filter.
    if (HasFlag(wxFD_SAVE) ? !name.empty() : Shows(pattern, name) && wxFileExists(folder + "/" + name))
        SetFilename(name);
    // Set the filter last: in a dialog to open a file, SetFilename() makes the toolkit choose another filter.
    SetFilterIndex(filter);
    return true;
}

int wxRememberingFileDialog::ShowModal()
{
    const int result = wxFileDialog::ShowModal();
    const wxString path = result == wxID_OK ? Chosen(*this, wxFD_MULTIPLE) : wxString();
    if (path.empty() || m_entry.empty())
        return result;

    const CLocalRegStore::Batch batch;
    const std::string key = file_util_ex::ConvertToUTF8(m_entry.ToStdWstring());
    fittings::SaveLastPath(path.wc_str(), key.c_str());
    const wxArrayString filters = PatternsOf(GetWildcard());
    // Store a filter only if the dialog still has one. If a selected file is hidden by the filter, GTK's dialog drops
    // the filter.
    if (filters.size() > 1 && gtk_file_chooser_get_filter(GTK_FILE_CHOOSER(GetHandle()))) {
        const wxString& filter = filters[static_cast<std::size_t>(GetFilterIndex())];
        CLocalRegStore::WriteString(kLastFiltersSection, m_entry.wc_str(), filter.wc_str());
    }
    return result;
}

wxRememberingDirDialog::wxRememberingDirDialog(wxWindow* parent, const wxString& entry, const wxString& message,
                                               long style)
{
    Create(parent, entry, message, style);
}

bool wxRememberingDirDialog::Create(wxWindow* parent, const wxString& entry, const wxString& message, long style)
{
    m_entry = entry;
    const std::wstring last = entry.empty() ? std::wstring() : fittings::LoadLastFolder(entry.wc_str());
    return wxDirDialog::Create(parent, message, StartFolder(last), style);
}

int wxRememberingDirDialog::ShowModal()
{
    const int result = wxDirDialog::ShowModal();
    if (result == wxID_OK && !m_entry.empty())
        fittings::SaveLastFolder(m_entry.wc_str(), Chosen(*this, wxDD_MULTIPLE).wc_str());
    return result;
}
