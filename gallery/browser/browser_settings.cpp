#include <gallery/browser/browser_settings.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/platform/local_reg_store.h>

#include <gallery/folders/native_text.h>

namespace gallery::browser_settings {

namespace {

constexpr const wchar_t* kFile = L"browser.ini";
// This section is in the default store, because ui_config_mgr cannot remove a key from its files.
constexpr const wchar_t* kSelectedSection = L"SelectedFolder";
constexpr const wchar_t* kColourSection = L"FolderColours";
constexpr std::size_t kRememberedRoots = 50;

/// Reads a number that someone may have edited; 0 when it is not a number.
int LoadInt(const wchar_t* section, const wchar_t* key)
{
    try {
        return ui_config_mgr::GetConfigInt(kFile, section, key);
    } catch (const std::logic_error&) {
        return 0;
    }
}

/// Returns the roots of earlier sessions as texts, the latest first.
std::vector<std::wstring> LoadRoots()
{
    std::vector<std::wstring> roots;
    std::wistringstream text(ui_config_mgr::GetConfigString(kFile, L"Folders", L"Roots"));
    for (std::wstring root; std::getline(text, root, L'|');) {
        if (!root.empty())
            roots.push_back(root);
    }
    return roots;
}

std::wstring WidthKey(std::size_t column)
{
    return L"Width" + std::to_wstring(column + 1);
}

}  // namespace

wxString LoadPage()
{
    return ui_config_mgr::GetConfigString(kFile, L"Window", L"Page");
}

void SavePage(const wxString& name)
{
    ui_config_mgr::WriteConfigString(kFile, L"Window", L"Page", name);
}

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
    ui_config_mgr::WriteConfigString(kFile, L"Folders", L"Roots", text.c_str());
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
    SortOrder order;
    switch (LoadInt(L"Contents", L"SortColumn")) {
    case static_cast<int>(SortColumn::Size):
        order.column = SortColumn::Size;
        break;
    case static_cast<int>(SortColumn::Type):
        order.column = SortColumn::Type;
        break;
    case static_cast<int>(SortColumn::Modified):
        order.column = SortColumn::Modified;
        break;
    default:
        break;
    }
    order.ascending = LoadInt(L"Contents", L"SortDescending") == 0;
    return order;
}

wxString LoadMinimumSize()
{
    return ui_config_mgr::GetConfigString(kFile, L"Contents", L"AtLeastMB");
}

void SaveMinimumSize(const wxString& megabytes)
{
    ui_config_mgr::WriteConfigString(kFile, L"Contents", L"AtLeastMB", megabytes);
}

std::vector<int> LoadEarlierColumnWidths(std::size_t count)
{
    std::vector<int> widths;
    for (std::size_t i = 0; i < count; ++i) {
        const int width = LoadInt(L"Contents", WidthKey(i).c_str());
        if (width < 10 || width > 10000)
            return {};
        widths.push_back(width);
    }
    return widths;
}

}  // namespace gallery::browser_settings
