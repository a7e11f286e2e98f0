// AUI layouts: every layout that the toolkit writes can be loaded. Any other text is loaded, or leaves the panes
// unchanged. No text causes an assertion of the toolkit, except the texts that HasDelimiterInText() finds.

#include <array>
#include <cstdint>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

#include <wx/aui/framemanager.h>
#include <wx/frame.h>
#include <wx/panel.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>
#include <fuzz/support/check.h>
#include <fuzz/support/toolkit.h>

namespace {

constexpr std::array<const char*, 4> kNames{"tree", "log", "list", "bar"};
constexpr const char* kTexts[] = {
    "", "\\", ";", "|", "\\;", ";;", ";caption=", ";state=", "=", " ", "\a", "\b", "name="};

class PanesFrame : public wxFrame
{
public:
    PanesFrame() : wxFrame(nullptr, wxID_ANY, "fuzz", wxPoint(100, 100), wxSize(500, 400))
    {
        manager.SetManagedWindow(this);
        for (const char* const name : kNames)
            manager.AddPane(new wxPanel(this), wxAuiPaneInfo().Name(name).Caption(name).BestSize(60, 40));
        manager.Update();
    }
    ~PanesFrame() override { manager.UnInit(); }

    wxAuiManager manager;
};

wxString ConsumeCaption(FuzzedDataProvider& bytes)
{
    wxString text = bytes.PickValueInArray(kTexts);
    for (int more = bytes.ConsumeIntegralInRange(0, 3); more > 0; --more) {
        text += static_cast<wchar_t>(bytes.ConsumeIntegralInRange(1, 0xFF));
        text += bytes.PickValueInArray(kTexts);
    }
    return text;
}

// Arranges the panes as the bytes choose. A program or its user could arrange them in the same way.
void Arrange(wxAuiManager& manager, FuzzedDataProvider& bytes)
{
    for (const char* const name : kNames) {
        wxAuiPaneInfo& pane = manager.GetPane(name);
        pane.Direction(bytes.ConsumeIntegralInRange(0, 5)).Caption(ConsumeCaption(bytes));
        pane.Layer(bytes.ConsumeIntegralInRange(0, 20)).Row(bytes.ConsumeIntegralInRange(0, 300));
        pane.Position(bytes.ConsumeIntegralInRange(-50, 3000));
        pane.BestSize(bytes.ConsumeIntegralInRange(-1, 2000), bytes.ConsumeIntegralInRange(-1, 2000));
        pane.MinSize(bytes.ConsumeIntegralInRange(-1, 300), bytes.ConsumeIntegralInRange(-1, 300));
        pane.Show(bytes.ConsumeBool()).Resizable(bytes.ConsumeBool()).DockFixed(bytes.ConsumeBool());
        // Float few panes: floating panes are slow, because the window manager handles each of them.
        if (bytes.ConsumeIntegralInRange(0, 15) == 0)
            pane.Float().FloatingPosition(bytes.ConsumeIntegralInRange(-100, 900), 50);
    }
    if (bytes.ConsumeBool())
        manager.Update();
    if (bytes.ConsumeBool())
        manager.MaximizePane(manager.GetPane(bytes.PickValueInArray(kNames)));
}

// Returns the layout with some of its numbers or characters replaced.
std::wstring Damage(std::wstring layout, FuzzedDataProvider& bytes)
{
    constexpr const wchar_t* kNumbers[] = {L"-1",      L"0",          L"1",          L"9999",
                                           L"10000",   L"1000000",    L"-1000000",   L"999999",
                                           L"1000001", L"2147483647", L"4294967295", L"-100000"};
    for (int count = bytes.ConsumeIntegralInRange(0, 4); count > 0; --count) {
        std::size_t at = bytes.ConsumeIntegralInRange<std::size_t>(0, layout.size() - 1);
        const std::size_t number = layout.find_first_of(L"0123456789-", at);
        if (bytes.ConsumeBool() && number != layout.npos) {
            const std::size_t end = layout.find_first_not_of(L"0123456789-", number);
            layout.replace(number, end - number, bytes.PickValueInArray(kNumbers));
        } else {
            layout[at] = static_cast<wchar_t>(bytes.ConsumeIntegralInRange(1, 0x7F));
        }
    }
    return layout;
}

// Returns whether the layout contains "\;" or the control character "\b". The toolkit writes the ";" of a caption as
// "\;". When it loads a layout, it replaces "\;" by "\b", and "\b" by ";". It then reads the text after this ";" as
// the next property of the pane, and asserts if it does not know this property.
bool HasDelimiterInText(const std::wstring& layout)
{
    return layout.find(L"\\;") != layout.npos || layout.find(L'\b') != layout.npos;
}

void CheckLoading(const std::wstring& layout)
{
    ui_config_mgr::WriteConfigString(L"wxAuiManagerState.ini", L"wxAuiManagerState", L"panes", layout.c_str());
    PanesFrame frame;
    const wxString before = frame.manager.SavePerspective();
    if (!wx_window_state::LoadAuiManagerState(&frame.manager, L"panes"))
        Check(frame.manager.SavePerspective() == before, "the manager is unchanged");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StartToolkit();
    FuzzedDataProvider bytes(data, size);
    if (bytes.ConsumeBool()) {
        const std::wstring text = ConsumeWideText(bytes);
        if (!HasDelimiterInText(text))
            CheckLoading(text);
        return 0;
    }

    PanesFrame frame;
    Arrange(frame.manager, bytes);
    const std::wstring written = frame.manager.SavePerspective().ToStdWstring();
    wx_window_state::SaveAuiManagerState(&frame.manager, L"panes");
    Check(ui_config_mgr::GetConfigString(L"wxAuiManagerState.ini", L"wxAuiManagerState", L"panes") == written,
          "a layout is stored as the toolkit writes it");
    const bool isReadBack = !HasDelimiterInText(written);
    const AssertionsAllowed allowed(!isReadBack);
    PanesFrame other;
    Check(wx_window_state::LoadAuiManagerState(&other.manager, L"panes"), "a layout of the toolkit is loaded");
    const std::wstring damaged = Damage(written, bytes);
    if (!HasDelimiterInText(damaged))
        CheckLoading(damaged);
    return 0;
}
