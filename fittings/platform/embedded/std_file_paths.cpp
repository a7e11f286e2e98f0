#include <fittings/platform/std_file_paths.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

#include <glib.h>
#include <pwd.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/string.h>

#include <fittings/platform/embedded/unicode.h>
#include <fittings/platform/file_util_ex.h>

namespace {

// What the kernel takes for one file name, in bytes.
constexpr std::size_t kMaxNameBytes = 255;

struct DataDir
{
    std::mutex mutex;
    std::wstring chosen;
    bool known = false;
    wxString applicationName;
    std::wstring path;
};

DataDir& TheDataDir()
{
    // Never destroyed, as the default store, which lies there, is not.
    static auto& dataDir = *new DataDir;
    return dataDir;
}

// The name as one component of a path: what a file name cannot hold, or should not, becomes an underscore.
std::wstring SafeFileName(const std::wstring& text)
{
    // What is no Unicode character cannot come back from the disk.
    std::wstring name = file_util_ex::ConvertFromUTF8W(file_util_ex::ConvertToUTF8(text));
    for (wchar_t& character : name) {
        if (character == L'/' || fittings::IsControl(static_cast<char32_t>(character)))
            character = L'_';
    }
    if (name == L"." || name == L"..")
        name.assign(name.size(), L'_');
    name.resize(std::min(name.size(), kMaxNameBytes));
    while (file_util_ex::ConvertToUTF8(name).size() > kMaxNameBytes)
        name.pop_back();
    return name;
}

wxString ApplicationName()
{
    const wxAppConsole* app = wxAppConsole::GetInstance();
    return app ? app->GetAppName() : wxString();
}

std::wstring ApplicationFolderName(const wxString& applicationName)
{
    std::wstring name = SafeFileName(applicationName.ToStdWstring());
    if (name.empty())
        name = SafeFileName(file_util_ex::ConvertFromUTF8W(program_invocation_short_name));
    return name.empty() ? L"application" : name;
}

// What the password database has for the user's home folder; empty where it has none.
std::string RegisteredHome()
{
    constexpr std::size_t kMostBytes = std::size_t{1} << 20;
    passwd entry{};
    passwd* found = nullptr;
    std::vector<char> texts(1024);
    while (getpwuid_r(getuid(), &entry, texts.data(), texts.size(), &found) == ERANGE && texts.size() < kMostBytes)
        texts.resize(2 * texts.size());
    return found && found->pw_dir ? found->pw_dir : "";
}

// Always absolute: GLib hands on what HOME says, and in a relative folder, or an empty one, settings would be stored
// wherever the program happens to run.
std::wstring Home()
{
    std::string home = g_get_home_dir();
    if (!g_path_is_absolute(home.c_str()))
        home = RegisteredHome();
    return g_path_is_absolute(home.c_str()) ? file_util_ex::ConvertFromUTF8W(home) : L"/";
}

std::wstring BaseDataDir()
{
    const char* base = g_get_user_data_dir();
    // The XDG Base Directory Specification has a relative path ignored; GLib hands it on.
    if (g_path_is_absolute(base))
        return file_util_ex::ConvertFromUTF8W(base);
    return file_util_ex::MakePath(Home(), L".local/share");
}

}  // namespace

namespace std_file_paths {

std::wstring GetUserDataDir()
{
    DataDir& dataDir = TheDataDir();
    const std::lock_guard<std::mutex> lock(dataDir.mutex);
    if (!dataDir.chosen.empty())
        return dataDir.chosen;
    // Asked for at every access to the settings, so it is worked out anew only when the application's name changes.
    const wxString name = ApplicationName();
    if (!dataDir.known || name != dataDir.applicationName) {
        dataDir.path = file_util_ex::MakePath(BaseDataDir(), ApplicationFolderName(name));
        dataDir.applicationName = name;
        dataDir.known = true;
    }
    return dataDir.path;
}

void SetUserDataDir(const CStdStr<wchar_t>& path)
{
    DataDir& dataDir = TheDataDir();
    const std::lock_guard<std::mutex> lock(dataDir.mutex);
    dataDir.chosen = file_util_ex::RemoveBackSlash(path.c_str());
}

std::wstring GetAppFolderPath(const wchar_t* name)
{
    // Where the documents are is read from the home folder, and said relative to it.
    const bool hasHome = g_path_is_absolute(g_get_home_dir());
    const char* documents = hasHome ? g_get_user_special_dir(G_USER_DIRECTORY_DOCUMENTS) : nullptr;
    const std::wstring base = documents ? file_util_ex::ConvertFromUTF8W(documents) : Home();
    return file_util_ex::MakePath(file_util_ex::MakePath(base, ApplicationFolderName(ApplicationName())), name);
}

}  // namespace std_file_paths
