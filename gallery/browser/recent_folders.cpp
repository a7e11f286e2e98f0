#include <gallery/browser/recent_folders.h>

#include <cstddef>
#include <vector>

#include <wx/menu.h>

#include <fittings/config/store_config.h>

#include <gallery/browser/browser_settings.h>
#include <gallery/folders/native_text.h>

namespace gallery {

namespace {

class Config : public wxStoreConfig
{
public:
    Config()
    {
        SetPath("/RecentFolders");
        SetExpandEnvVars(false);  // a folder may be named "$HOME"
    }
};

std::size_t IndexOf(int id)
{
    return static_cast<std::size_t>(id - wxID_FILE1);
}

}  // namespace

RecentFolders::RecentFolders()
{
    m_history.SetMenuPathStyle(wxFH_PATH_SHOW_ALWAYS);
    const Config config;
    m_history.Load(config);
    if (m_history.GetCount() > 0)
        return;
    // Take over the roots that a version without this menu has stored.
    const std::vector<std::string> roots = browser_settings::LoadRootFolders();
    for (auto root = roots.rbegin(); root != roots.rend(); ++root)
        Add(*root);
}

wxMenu* RecentFolders::MakeMenu()
{
    auto* const menu = new wxMenu;
    m_history.UseMenu(menu);
    m_history.AddFilesToMenu(menu);
    return menu;
}

void RecentFolders::Add(const std::string& path)
{
    const wxString text = TextFromPath(path);
    if (m_history.GetCount() == 0 || m_history.GetHistoryFile(0) != text)
        m_history.AddFileToHistory(text);
}

std::string RecentFolders::PathOf(int id) const
{
    return PathFromText(m_history.GetHistoryFile(IndexOf(id)).ToStdWstring());
}

void RecentFolders::Remove(int id)
{
    m_history.RemoveFileFromHistory(IndexOf(id));
}

void RecentFolders::Save()
{
    Config config;
    m_history.Save(config);
}

}  // namespace gallery
