// Wildcards and extensions: the save dialog shows the first filter that contains the extension. If no filter contains
// the extension, the dialog shows the first filter. A cancelled dialog stores nothing.

#include <cstdint>
#include <string>

#include <fuzzer/FuzzedDataProvider.h>

#include <wx/filedlg.h>
#include <wx/modalhook.h>

#include <fittings/dialogs/file_dialog.h>
#include <fittings/platform/local_reg_store.h>
#include <fuzz/support/check.h>
#include <fuzz/support/toolkit.h>

namespace {

class Cancel : public wxModalDialogHook
{
public:
    Cancel() { Register(); }
    ~Cancel() override { Unregister(); }

    int filterIndex = -1;
    wxString wildcard;

protected:
    int Enter(wxDialog* dialog) override
    {
        const auto* const asked = wxDynamicCast(dialog, wxFileDialog);
        Check(asked != nullptr, "a file dialog is shown");
        filterIndex = asked->GetFilterIndex();
        wildcard = asked->GetWildcard();
        return wxID_CANCEL;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StartToolkit();
    FuzzedDataProvider bytes(data, size);
    std::wstring extension;
    for (const unsigned char byte : bytes.ConsumeBytesAsString(bytes.ConsumeIntegralInRange<std::size_t>(0, 6)))
        if (byte != 0)
            extension += static_cast<wchar_t>(byte);
    const std::wstring wildcard = ConsumeWideText(bytes);

    CQVFileDialogI::SetRegEntry("fuzz");
    Cancel cancel;
    Check(CQVFileDialogI::LaunchSaveDialog(nullptr, extension.c_str(), wildcard.c_str(), L"", L"", L"").empty(),
          "nothing was chosen");
    Check(CLocalRegStore::GetString("LastFiles", "fuzz", "(none)") == "(none)", "nothing is remembered");

    if (wildcard.empty() && !extension.empty())
        Check(cancel.wildcard == L"*." + extension, "without a wildcard, the extension is used");
    int expected = 0;
    if (!extension.empty() && wildcard.find(L'|') != wildcard.npos) {
        wxArrayString descriptions;
        wxArrayString patterns;
        wxParseCommonDialogsFilter(wildcard, descriptions, patterns);
        for (std::size_t i = patterns.size(); i-- > 0;)
            if (patterns[i].ToStdWstring().find(extension) != std::wstring::npos)
                expected = static_cast<int>(i);
    }
    Check(cancel.filterIndex <= 0 ? expected == 0 : cancel.filterIndex == expected, "the extension's filter is shown");
    return 0;
}
