#include "browser_settings.h"

#include <stdexcept>

#include <fittings/config/ui_config_mgr.h>

#include "native_text.h"

namespace fittings::browser_settings {

namespace {

constexpr const wchar_t* file = L"browser.ini";

/// A number that someone may have edited; 0 when it is none.
int LoadInt(const wchar_t* section, const wchar_t* key)
{
    try {
        return ui_config_mgr::GetConfigInt(file, section, key);
    } catch (const std::logic_error&) {
        return 0;
    }
}

std::wstring WidthKey(std::size_t column)
{
    return L"Width" + std::to_wstring(column + 1);
}

}  // namespace

std::string LoadRootFolder()
{
    return PathFromText(ui_config_mgr::GetConfigString(file, L"Folders", L"Root"));
}

void SaveRootFolder(const std::string& path)
{
    ui_config_mgr::WriteConfigString(file, L"Folders", L"Root", TextFromPath(path).c_str());
}

std::string LoadSelectedFolder(const std::string& root)
{
    return PathFromText(ui_config_mgr::GetConfigString(file, L"Selected", TextFromPath(root).c_str()));
}

void SaveSelectedFolder(const std::string& root, const std::string& path)
{
    ui_config_mgr::WriteConfigString(file, L"Selected", TextFromPath(root).c_str(), TextFromPath(path).c_str());
}

SortOrder LoadSortOrder()
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

void SaveSortOrder(SortOrder order)
{
    ui_config_mgr::WriteConfigInt(file, L"Contents", L"SortColumn", static_cast<int>(order.column));
    ui_config_mgr::WriteConfigInt(file, L"Contents", L"SortDescending", order.ascending ? 0 : 1);
}

std::vector<int> LoadColumnWidths(std::size_t count)
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

void SaveColumnWidths(const std::vector<int>& widths)
{
    for (std::size_t i = 0; i < widths.size(); ++i)
        ui_config_mgr::WriteConfigInt(file, L"Contents", WidthKey(i).c_str(), widths[i]);
}

}  // namespace fittings::browser_settings
