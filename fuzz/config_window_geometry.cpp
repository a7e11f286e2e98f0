// Window geometry: loading any stored text leaves the window unchanged, or makes the whole window visible.

#include <cstdint>
#include <cwchar>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

#include <wx/display.h>
#include <wx/frame.h>

#include <fittings/config/wx_window_state.h>
#include <fittings/platform/local_reg_store.h>
#include <fuzz/support/check.h>
#include <fuzz/support/toolkit.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StartToolkit();
    FuzzedDataProvider bytes(data, size);
    const bool isMaximized = bytes.ConsumeBool();
    const std::wstring text = ConsumeWideText(bytes);
    Check(CLocalRegStore::WriteString(L"wxWindowState", L"window", text.c_str()), "the text can be stored");
    CLocalRegStore::WriteProfileBool(L"wxWindowMaximize", L"window", isMaximized);

    wxFrame frame(nullptr, wxID_ANY, "fuzz", wxPoint(100, 100), wxSize(300, 200));
    const wxRect before = frame.GetRect();
    const bool isLoaded = wx_window_state::LoadState(static_cast<wxWindow*>(&frame), L"window");
    const wxRect after = frame.GetRect();

    int fields[4] = {};
    const bool isGeometry =
        std::swscanf(text.c_str(), L"%d;%d;%d;%d", &fields[0], &fields[1], &fields[2], &fields[3]) == 4;
    Check(isLoaded == isGeometry, "only four numbers are loaded");
    if (!isLoaded)
        Check(after == before, "the window is unchanged");
    else
        Check(wxDisplay(0U).GetClientArea().Contains(after), "the whole window is visible");

    wx_window_state::SaveState(static_cast<wxWindow*>(&frame), L"window");
    frame.SetSize(before);
    Check(wx_window_state::LoadState(static_cast<wxWindow*>(&frame), L"window"), "a saved geometry is loaded");
    // Leave out small windows: loading does not apply a stored width or height of 10 pixels or less.
    if (after.width > 10 && after.height > 10)
        Check(frame.GetRect() == after, "the window is restored to its place");
    return 0;
}
