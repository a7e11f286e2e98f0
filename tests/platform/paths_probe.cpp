// paths_probe [--app [NAME]]: prints GetUserDataDir() and GetAppFolderPath(L"Samples"), one per line. With --app, the
// program has an application object. NAME, if it is given, becomes the name of the application.

#include <cstdio>
#include <string>

#include <wx/app.h>
#include <wx/init.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

int main(int argc, char** argv)
{
    const bool hasApp = argc > 1 && std::string(argv[1]) == "--app";
    if (hasApp) {
        wxApp::SetInstance(new wxAppConsole);
        if (!wxEntryStart(argc, argv))
            return 1;
        if (argc > 2)
            wxAppConsole::GetInstance()->SetAppName(file_util_ex::ConvertFromUTF8W(argv[2]));
    }
    for (const std::wstring& path : {std_file_paths::GetUserDataDir(), std_file_paths::GetAppFolderPath(L"Samples")})
        std::printf("%s\n", file_util_ex::ConvertToUTF8(path).c_str());
    if (hasApp)
        wxEntryCleanup();
    return 0;
}
