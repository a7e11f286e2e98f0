#include <gallery/browser/browser_settings.h>

#include <algorithm>
#include <sstream>

#include <fittings/platform/local_reg_store.h>

#include <gallery/folders/native_text.h>
#include <gallery/pages/page_settings.h>

namespace gallery::browser_settings {

namespace {

constexpr PageSettings kFolderSettings(L"browser.ini", L"Folders");
// These sections are in the store of CLocalRegStore and not in browser.ini, because ui_config_mgr, which writes
// browser.ini, cannot remove a key.
constexpr const wchar_t* kSelectedSection = L"SelectedFolder";
constexpr const wchar_t* kColourSection = L"FolderColours";
constexpr std::size_t kRememberedRoots = 50;

// Returns the stored root folders as texts, the latest first.
std::vector<std::wstring> LoadRoots()
{
    std::vector<std::wstring> roots;
    std::wistringstream text(kFolderSettings.Load("Roots").ToStdWstring());
    for (std::wstring root; std::getline(text, root, L'|');) {
        if (!root.empty())
            roots.push_back(root);
    }
    return roots;
}

}  // namespace

std::vector<std::string> LoadRootFolders()
{
    std::vector<std::string> paths;
    for (const std::wstring& root : LoadRoots())
        paths.push_back(PathFromText(root));
    return paths;
}

std::string SaveRootFolder(const std::string& path)
{
    const std::wstring root = TextFromPath(path);
    std::vector<std::wstring> roots = LoadRoots();
    roots.erase(std::remove(roots.begin(), roots.end(), root), roots.end());
    roots.insert(roots.begin(), root);
    std::wstring forgotten;
    if (roots.size() > kRememberedRoots) {
        forgotten = roots.back();
        roots.pop_back();
        CLocalRegStore::DeleteProfile(kSelectedSection, forgotten.c_str());
    }
    std::wstring text;
    for (const std::wstring& each : roots)
        text += each + L'|';
    kFolderSettings.Save("Roots", text);
    return PathFromText(forgotten);
}

std::string LoadSelectedFolder(const std::string& root)
{
    return PathFromText(CLocalRegStore::GetString(kSelectedSection, TextFromPath(root).c_str(), L""));
}

void SaveSelectedFolder(const std::string& root, const std::string& path)
{
    CLocalRegStore::WriteString(kSelectedSection, TextFromPath(root).c_str(), TextFromPath(path).c_str());
}

wxColour LoadFolderColour(const std::string& path)
{
    wxColour colour;
    const wxString text = CLocalRegStore::GetString(kColourSection, TextFromPath(path).c_str(), L"");
    if (text.StartsWith("#"))
        colour.Set(text);
    return colour;
}

void SaveFolderColour(const std::string& path, const wxColour& colour)
{
    const std::wstring key = TextFromPath(path);
    if (colour.IsOk())
        CLocalRegStore::WriteString(kColourSection, key.c_str(), colour.GetAsString(wxC2S_HTML_SYNTAX));
    else
        CLocalRegStore::DeleteProfile(kColourSection, key.c_str());
}

SortOrder LoadEarlierSortOrder()
{
    constexpr int kLast = static_cast<int>(SortColumn::Modified);
    const int column = kContentsSettings.LoadNumber("SortColumn", 0, kLast, 0);
    return {static_cast<SortColumn>(column), !kContentsSettings.LoadFlag("SortDescending", false)};
}

std::vector<int> LoadEarlierColumnWidths(std::size_t count)
{
    std::vector<int> widths;
    for (std::size_t i = 1; i <= count; ++i) {
        widths.push_back(kContentsSettings.LoadNumber("Width" + std::to_string(i), 10, 10000, 0));
        if (widths.back() == 0)
            return {};
    }
    return widths;
}

}  // namespace gallery::browser_settings
