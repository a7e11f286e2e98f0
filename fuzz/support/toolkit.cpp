#include <fuzz/support/toolkit.h>

#include <iterator>

#include <fuzzer/FuzzedDataProvider.h>

#include <wx/app.h>
#include <wx/init.h>

#include <fuzz/support/check.h>
#include <tests/support/temp_user_data.h>

namespace {

bool g_areAssertionsAllowed = false;

class FuzzApp : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("fittings-fuzz");
        return true;
    }

    void OnAssertFailure(const wxChar* /*file*/, int /*line*/, const wxChar* function, const wxChar* condition,
                         const wxChar* message) override
    {
        const wxString where(function);
        if (!g_areAssertionsAllowed && where != "wxParseCommonDialogsFilter" && where != "GetFilterIndex")
            Check(false, wxString::Format("%s in %s, %s", condition, function, message).utf8_str());
    }
};

bool Start()
{
    static char name[] = "fittings-fuzz";
    static char* arguments[] = {name, nullptr};
    static int count = 1;
    static const InMemory inMemory;
    static const TempUserData data;
    wxApp::SetInstance(new FuzzApp);
    Check(wxEntryStart(count, arguments) && wxTheApp->CallOnInit(), "the toolkit starts");
    return true;
}

}  // namespace

void StartToolkit()
{
    static const bool started = Start();
    static_cast<void>(started);
}

AssertionsAllowed::AssertionsAllowed(bool allowed)
{
    g_areAssertionsAllowed = allowed;
}

AssertionsAllowed::~AssertionsAllowed()
{
    g_areAssertionsAllowed = false;
}

std::wstring ConsumeWideText(FuzzedDataProvider& bytes)
{
    constexpr wchar_t kUnusual[] = {0x85, 0xA0, 0xDF, 0x2028, 0x3042, 0xD800, 0xFEFF, 0x1F600, 0x10FFFF};
    std::wstring text;
    for (const unsigned char byte : bytes.ConsumeRemainingBytesAsString())
        text += byte < 0x80 ? static_cast<wchar_t>(byte) : kUnusual[byte % std::size(kUnusual)];
    return text.substr(0, text.find(L'\0'));
}
