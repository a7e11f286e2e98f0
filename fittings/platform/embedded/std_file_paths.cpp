#include <fittings/platform/std_file_paths.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <glib.h>
#include <pwd.h>
#include <unistd.h>
#include <wx/app.h>
#include <wx/string.h>

#include <fittings/platform/embedded/text/unicode.h>
#include <fittings/platform/file_util_ex.h>

namespace {

// The longest file name that the kernel accepts, in bytes.
constexpr std::size_t kMaxNameBytes = 255;

struct DataDir
{
    std::mutex mutex;
    std::wstring chosen;
    std::optional<wxString> applicationName;  // The name for which the path was computed.
    std::wstring path;
};

DataDir& TheDataDir()
{
    // Never destroyed: the default store needs the path until the process ends.
    static auto& dataDir = *new DataDir;
    return dataDir;
}

std::wstring SafeFileName(const std::wstring& text)
{
    // Replace each code that is not a Unicode character by U+FFFD, because a file name cannot contain such a code.
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

// Returns the home folder that the password database has for the user, or an empty path if there is none.
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

// Returns the home folder as an absolute path. Ignores a relative or empty HOME, which GLib returns as it is: with such
// a HOME, settings would be stored below the current folder.
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
    // GLib returns a relative folder if XDG_DATA_HOME is relative, which is not valid, or if HOME is empty or relative.
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
    // Called at every access to the settings, so compute the path again only when the application's name changes.
    const wxString name = ApplicationName();
    if (name != dataDir.applicationName) {
        dataDir.path = file_util_ex::MakePath(BaseDataDir(), ApplicationFolderName(name));
        dataDir.applicationName = name;
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
    // If HOME is relative, GLib could return a documents folder below that relative folder.
    const bool hasHome = g_path_is_absolute(g_get_home_dir());
    const char* documents = hasHome ? g_get_user_special_dir(G_USER_DIRECTORY_DOCUMENTS) : nullptr;
    const std::wstring base = documents ? file_util_ex::ConvertFromUTF8W(documents) : Home();
    return file_util_ex::MakePath(file_util_ex::MakePath(base, ApplicationFolderName(ApplicationName())), name);
}

}  // namespace std_file_paths
