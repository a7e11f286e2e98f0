// Stores values through the library and reads them back. Then prints the store that memory_platform.cpp implements.

#include <cstdio>

#include <wx/wx.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>

#include "memory_platform.h"

class Host : public wxApp
{
public:
    int OnRun() override
    {
        ui_config_mgr::WriteConfigString(L"search.ini", L"Results", L"Sort", L"by name");
        ui_config_mgr::WriteConfigInt(L"search.ini", L"Results", L"PageSize", 50);
        std::printf("Sort: %ls\n", ui_config_mgr::GetConfigString(L"search.ini", L"Results", L"Sort").c_str());
        std::printf("PageSize: %d\n", ui_config_mgr::GetConfigInt(L"search.ini", L"Results", L"PageSize"));

        auto* first = new wxFrame(nullptr, wxID_ANY, "First", wxPoint(120, 90), wxSize(640, 480));
        auto* second = new wxFrame(nullptr, wxID_ANY, "Second", wxPoint(0, 0), wxSize(200, 100));
        wx_window_state::SaveState(first, L"Main");
        std::printf("Loaded: %d\n", wx_window_state::LoadState(second, L"Main"));
        const wxRect now = second->GetRect();
        std::printf("Second: %d %d %d %d\n", now.x, now.y, now.width, now.height);

        for (const auto& [address, value] : GetMemoryStore()) {
            const auto& [file, section, key] = address;
            std::printf("%ls [%ls] %ls=%ls\n", file.c_str(), section.c_str(), key.c_str(), value.c_str());
        }
        first->Destroy();
        second->Destroy();
        return 0;
    }
};
wxIMPLEMENT_APP(Host);
