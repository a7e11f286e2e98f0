#include <fittings/dialogs/file_dialog.h>

#include <cerrno>
#include <cstddef>
#include <utility>

#include <wx/arrstr.h>
#include <wx/debug.h>
#include <wx/filedlg.h>
#include <wx/filename.h>

#include <fittings/base/or_empty.h>
#include <fittings/dialogs/file_dialog_p.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

namespace {

CStdStr<wchar_t> g_fileExtension;
CStdStr<wchar_t> g_fileFilter;
std::string g_regEntry;

wxString EffectiveWildcard(const wxString& wildcard, const wxString& extension)
{
    if (!wildcard.empty() || extension.empty())
        return wildcard;
    return fittings::kWildcardPrefix + extension;
}

// Returns the index of the first filter whose pattern contains the extension; 0 when there is none.
int FilterIndexOf(const wxString& wildcard, const wxString& extension)
{
    if (extension.empty() || !wildcard.Contains("|"))
        return 0;
    wxArrayString descriptions;
    wxArrayString patterns;
    wxParseCommonDialogsFilter(wildcard, descriptions, patterns);
    for (std::size_t index = 0; index < patterns.size(); ++index) {
        if (patterns[index].Contains(extension))
            return static_cast<int>(index);
    }
    return 0;
}

bool IsGone(const wxString& path)
{
    wxStructStat info;
    return wxStat(path, &info) != 0 && errno == ENOENT;
}

bool CanBeShown(const wxFileName& folder)
{
    return folder.DirExists() && folder.IsDirReadable();
}

// If @a start is a file, or a folder that the user is not allowed to read, starts the dialog in the nearest folder
// above it that can be shown. Otherwise GTK's dialog would show an error or stay empty, and the user could choose
// nothing. If @a start is missing, GTK's dialog itself starts in a folder above it.
void StartInReadableFolder(wxFileDialog& dialog, const wxString& start)
{
    if (!CanBeShown(wxFileName::DirName(start)) && !IsGone(start))
        dialog.SetDirectory(fittings::NearestThatCanBeShown(start));
}

}  // namespace

void CQVFileDialogI::SetFileExtension(const CStdStr<wchar_t>& ext)
{
    g_fileExtension = ext;
}

void CQVFileDialogI::SetFileFilter(const CStdStr<wchar_t>& filter)
{
    g_fileFilter = filter;
}

CStdStr<wchar_t> CQVFileDialogI::GetFileExtension()
{
    return g_fileExtension;
}

CStdStr<wchar_t> CQVFileDialogI::GetFileFilter()
{
    return g_fileFilter;
}

std::string CQVFileDialogI::SetRegEntry(const std::string& entry)
{
    return std::exchange(g_regEntry, entry);
}

CStdStr<wchar_t> CQVFileDialogI::LaunchSaveDialog(wxWindow* parent, const wchar_t* defaultExtension,
                                                  const wchar_t* wildcard, const wchar_t* title,
                                                  const wchar_t* initialFolder, const wchar_t* initialFileName)
{
    wxCHECK_MSG(initialFolder, CStdStr<wchar_t>(), "the initial folder is null");
    wxString folder = *initialFolder ? initialFolder : fittings::LoadLastPath(g_regEntry.c_str());
    wxString fileName = fittings::OrEmpty(initialFileName);
    if (!folder.empty()) {
        // The text after the last separator is not a folder. It becomes the file name, without its extension, unless
        // the caller has given a file name.
        wxFileName path;
        path.Assign(folder, wxPATH_NATIVE);
        if (fileName.empty())
            fileName = path.GetName();
        folder = path.GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE);
    }
    const wxString chosen =
        fittings::FileSelector(title, folder.wc_str(), fileName.wc_str(), defaultExtension, wildcard,
                               wxFD_SAVE | wxFD_OVERWRITE_PROMPT, parent, wxDefaultCoord, wxDefaultCoord);
    fittings::SaveLastPath(chosen.wc_str(), g_regEntry.c_str());
    return chosen.wc_str();
}

namespace fittings {

std::string GetRegEntry()
{
    return g_regEntry;
}

CStdStr<wchar_t> LaunchOpenDialog(wxWindow* parent, const wchar_t* defaultExtension, const wchar_t* wildcard,
                                  const wchar_t* title, const wchar_t* folderSwitch)
{
    wxCHECK_MSG(folderSwitch, CStdStr<wchar_t>(), "the folder switch is null");
    const std::wstring folder = *folderSwitch ? LoadLastPath(g_regEntry.c_str()) : std::wstring();
    // The remembered path is that of a file. Pass the whole path: the dialog starts in the file's folder.
    const wxString chosen = FileSelector(title, folder.c_str(), L"", defaultExtension, wildcard,
                                         wxFD_OPEN | wxFD_FILE_MUST_EXIST, parent, wxDefaultCoord, wxDefaultCoord);
    SaveLastPath(chosen.wc_str(), g_regEntry.c_str());
    return chosen.wc_str();
}

wxString FileSelector(const wchar_t* title, const wchar_t* defaultDir, const wchar_t* defaultFile,
                      const wchar_t* defaultExt, const wchar_t* wildcard, long style, wxWindow* parent, int x, int y)
{
    const wxString extension = OrEmpty(defaultExt);
    const wxString effectiveWildcard = EffectiveWildcard(OrEmpty(wildcard), extension);
    wxFileDialog dialog(parent, OrEmpty(title), OrEmpty(defaultDir), OrEmpty(defaultFile), effectiveWildcard, style,
                        wxPoint(x, y), wxDefaultSize, wxFileDialogNameStr);
    StartInReadableFolder(dialog, OrEmpty(defaultDir));
    const int filterIndex = FilterIndexOf(effectiveWildcard, extension);
    if (filterIndex > 0)
        dialog.SetFilterIndex(filterIndex);
    dialog.Centre(wxBOTH);
    return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}

wxString NearestThatCanBeShown(const wxString& path)
{
    wxFileName folder = wxFileName::DirName(path);
    folder.MakeAbsolute();
    while (!CanBeShown(folder) && folder.GetDirCount() > 0)
        folder.RemoveLastDir();
    return folder.GetPath();
}

std::wstring LoadLastFile(const char* entry)
{
    const std::string path = *entry ? CLocalRegStore::GetString(kLastFilesSection, entry, "") : std::string();
    return path.empty() ? std::wstring() : file_util_ex::ConvertFromUTF8W(path);
}

std::wstring LoadLastPath(const char* entry)
{
    std::wstring path = LoadLastFile(entry);
    if (!*entry || !path.empty())
        return path;
    return file_util_ex::GetPathWithSep(std_file_paths::GetAppFolderPath(kSamplesFolder).c_str());
}

void SaveLastPath(const wchar_t* path, const char* entry)
{
    if (!*entry || !*path)
        return;
    // RemoveBackSlash() is a function of the platform library, which a host can replace. A replacement may rely on this
    // call to learn which file was chosen. The result is not used: the path is stored as it was chosen.
    file_util_ex::RemoveBackSlash(path);
    CLocalRegStore::WriteString(kLastFilesSection, entry, file_util_ex::ConvertToUTF8(path).c_str());
}

}  // namespace fittings
