// home_probe REGISTERED [store]: prints the user data directory and the folder "Samples" of the application's
// documents, one per line. The user's home folder in the password database is REGISTERED; with "none" the user is not
// in the database. With "store", the program first stores a value, and its exit code is 1 if that fails.

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include <pwd.h>

#include <wx/app.h>
#include <wx/init.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

namespace {

std::string g_registered;

}  // namespace

// Replaces the C library's function: returns REGISTERED as the home folder of every user.
int getpwuid_r(uid_t user, passwd* entry, char* texts, std::size_t size, passwd** found)
{
    static char nothing[] = "";
    *found = nullptr;
    if (g_registered == "none")
        return 0;
    // Behaves as for a long entry: the caller has to ask again with a larger buffer.
    if (size < g_registered.size() + 3000)
        return ERANGE;
    std::strcpy(texts, g_registered.c_str());
    *entry = {nothing, nothing, user, 0, nothing, texts, nothing};
    *found = entry;
    return 0;
}

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    g_registered = argv[1];
    const bool stores = argc > 2 && std::strcmp(argv[2], "store") == 0;
    wxApp::SetInstance(new wxAppConsole);
    if (!wxEntryStart(argc, argv))
        return 2;
    wxAppConsole::GetInstance()->SetAppName("Ledger");
    const bool isStored = !stores || CLocalRegStore::WriteString(L"Section", L"Key", L"value");
    for (const std::wstring& path : {std_file_paths::GetUserDataDir(), std_file_paths::GetAppFolderPath(L"Samples")})
        std::printf("%s\n", file_util_ex::ConvertToUTF8(path).c_str());
    wxEntryCleanup();
    return isStored ? 0 : 1;
}
