// library-load LIBRARY: prints how many nanoseconds dlopen() of LIBRARY takes in a program that has loaded the toolkit.
//
// Each measurement needs its own process, because a process loads a library only once.

#include <chrono>
#include <cstdio>

#include <dlfcn.h>

#include <wx/app.h>
#include <wx/aui/aui.h>

namespace {

class LoadApp : public wxApp
{
public:
    bool OnInit() override { return argc == 2; }

    int OnRun() override
    {
        const wxAuiManager loadsTheLibraryOfPanes;
        const auto begin = std::chrono::steady_clock::now();
        const bool loaded = dlopen(argv[1].utf8_str(), RTLD_NOW | RTLD_LOCAL) != nullptr;
        const auto end = std::chrono::steady_clock::now();
        if (!loaded) {
            std::fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        std::printf("%lld\n", static_cast<long long>(std::chrono::nanoseconds(end - begin).count()));
        return 0;
    }
};

}  // namespace

wxIMPLEMENT_APP(LoadApp);
