// The code that docs/guides shows: between two comments "[...]" stands what a guide takes over.

#include <gtest/gtest.h>

#include <wx/dialog.h>
#include <wx/fileconf.h>
#include <wx/frame.h>
#include <wx/persist/toplevel.h>
#include <wx/textctrl.h>
#include <wx/translation.h>
#include <wx/valnum.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/numedit/num_validator.h>
#include <fittings/numedit/number_edit_utils.h>
#include <fittings/platform/lng_util.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

namespace {

wxFrame* NewFrame(const wxRect& rect)
{
    return new wxFrame(nullptr, wxID_ANY, "guide", rect.GetPosition(), rect.GetSize());
}

namespace before {

//! [window before]
void Remember(wxFrame* frame)
{
    // When the frame is destroyed, its place and size are written to wxConfig.
    wxPersistentRegisterAndRestore(frame, "Main");
}
//! [window before]

//! [settings before]
void SaveSearch(wxConfigBase& config, const wxString& text, int pageSize)
{
    config.Write("/Search/LastText", text);
    config.Write("/Search/PageSize", pageSize);
    config.Flush();
}
//! [settings before]

//! [number before]
void AddPrice(wxTextCtrl* field, double* price)
{
    wxFloatingPointValidator<double> validator(2, price, wxNUM_VAL_THOUSANDS_SEPARATOR);
    validator.SetRange(0, 99999);
    field->SetValidator(validator);
}
//! [number before]

}  // namespace before

//! [window after]
void Remember(wxFrame* frame)
{
    wx_window_state::LoadState(frame, L"Main");
    frame->Bind(wxEVT_CLOSE_WINDOW, [frame](wxCloseEvent& event) {
        wx_window_state::SaveState(frame, L"Main");
        event.Skip();
    });
}
//! [window after]

//! [window once]
void TakeOver(wxFrame* frame)
{
    if (wx_window_state::LoadState(frame, L"Main"))
        return;
    // The first start of the new version: the geometry is still where the earlier one has left it.
    const wxConfigBase& earlier = *wxConfigBase::Get();
    const wxString path = "/Persistent_Options/Window/Main/";
    wxRect rect;
    if (earlier.Read(path + "x", &rect.x) && earlier.Read(path + "y", &rect.y) &&
        earlier.Read(path + "w", &rect.width) && earlier.Read(path + "h", &rect.height))
        frame->SetSize(rect);
    if (earlier.ReadBool(path + "Maximized", false))
        wx_window_state::MaximizeFrame(frame);
}
//! [window once]

//! [settings after]
void SaveSearch(const wxString& text, int pageSize)
{
    // Shared by all windows and processes of the program, and saved when the call returns.
    CLocalRegStore::WriteString(L"Search", L"LastText", text.wc_str());
    // In a file of its own, ui_config/search.ini.
    ui_config_mgr::WriteConfigInt(L"search.ini", L"Search", L"PageSize", pageSize);
}
//! [settings after]

//! [settings once]
void TakeOver(wxConfigBase& earlier)
{
    wxString group;
    long groups = 0;
    for (bool more = earlier.GetFirstGroup(group, groups); more; more = earlier.GetNextGroup(group, groups)) {
        const wxConfigPathChanger inGroup(&earlier, "/" + group + "/");
        wxString key;
        long keys = 0;
        for (bool next = earlier.GetFirstEntry(key, keys); next; next = earlier.GetNextEntry(key, keys))
            CLocalRegStore::WriteString(group.wc_str(), key.wc_str(), earlier.Read(key).wc_str());
    }
}
//! [settings once]

//! [number after]
void AddPrice(wxTextCtrl* field, wxString* price)
{
    CNumberFormat format(eFixedFormat);  // two decimals and at most five digits before them
    format.m_bAllowSign = false;
    field->SetValidator(wxNumValidator(format, price));
}

wxString Shown(const wxString& price)
{
    return CNumberEditUtils::FormatControlText(price.wc_str(), CNumberFormat(eFixedFormat));  // 1234.5 as 1,234.50
}

double ValueOf(const wxString& price)
{
    double value = 0;
    price.ToCDouble(&value);  // the format's point is "." in every locale
    return value;
}
//! [number after]

//! [language]
void UseLanguage(wxLanguage language)
{
    auto* translations = new wxTranslations;
    wxTranslations::Set(translations);
    translations->SetLanguage(language);   // wxLANGUAGE_DEFAULT is the user's
    translations->AddCatalog("fittings");  // before the program's own, whose words win
    translations->AddCatalog("planets");
}
//! [language]

// A configuration of the toolkit's in memory, as the one in force, and a user data directory for the store.
class Guide : public testing::Test
{
protected:
    Guide() { wxConfigBase::Set(&m_config); }
    ~Guide() override
    {
        wxConfigBase::Set(nullptr);
        wxTranslations::Set(nullptr);
        PumpPending();
    }

    static void Close(wxFrame* frame)
    {
        frame->Close();
        PumpPending();
    }

    const wxRect m_somewhere{160, 120, 420, 310};
    const wxRect m_elsewhere{20, 30, 300, 200};
    TempFolder m_folder;
    TempUserData m_data;
    wxFileConfig m_config{"guide", "", m_folder / "config", "", wxCONFIG_USE_LOCAL_FILE};
};

TEST_F(Guide, TakesOverTheGeometryOfTheToolkitsPersistence)
{
    wxFrame* frame = NewFrame(m_somewhere);
    before::Remember(frame);
    frame->Destroy();
    PumpPending();

    frame = NewFrame(m_elsewhere);
    TakeOver(frame);
    EXPECT_EQ(frame->GetRect(), m_somewhere);
    Remember(frame);
    Close(frame);
    EXPECT_EQ(CLocalRegStore::GetString(L"wxWindowState", L"Main", L""), L"160;120;420;310");
    m_config.DeleteAll();

    frame = NewFrame(m_elsewhere);
    TakeOver(frame);
    EXPECT_EQ(frame->GetRect(), m_somewhere);
    frame->Destroy();
}

TEST_F(Guide, TakesOverAMaximisedWindow)
{
    wxFrame* frame = NewFrame(m_somewhere);
    before::Remember(frame);
    ASSERT_TRUE(ShowAndSettle(frame));
    frame->Maximize();
    ASSERT_TRUE(PumpUntil([&] { return frame->IsMaximized(); }));
    frame->Destroy();
    PumpPending();

    frame = NewFrame(m_elsewhere);
    TakeOver(frame);
    frame->Show();
    EXPECT_TRUE(PumpUntil([&] { return frame->IsMaximized(); }));
    frame->Destroy();
}

TEST_F(Guide, RemembersAWindowAfterTheMove)
{
    wxFrame* frame = NewFrame(m_somewhere);
    Remember(frame);
    Close(frame);
    frame = NewFrame(m_elsewhere);
    Remember(frame);
    EXPECT_EQ(frame->GetRect(), m_somewhere);
    frame->Destroy();
}

TEST_F(Guide, TakesOverTheSettingsOfAFile)
{
    before::SaveSearch(m_config, L"caf\x00E9 = 2 %", 50);
    TakeOver(m_config);
    EXPECT_EQ(CLocalRegStore::GetString(L"Search", L"LastText", L""), L"caf\x00E9 = 2 %");
    EXPECT_EQ(CLocalRegStore::GetString(L"Search", L"PageSize", L""), L"50");
    EXPECT_EQ(m_config.GetPath(), "");
}

TEST_F(Guide, StoresSettingsAfterTheMove)
{
    SaveSearch("a needle", 25);
    EXPECT_EQ(CLocalRegStore::GetString(L"Search", L"LastText", L""), L"a needle");
    EXPECT_EQ(ui_config_mgr::GetConfigInt(L"search.ini", L"Search", L"PageSize"), 25);
}

TEST_F(Guide, TransfersTheSameNumberBeforeAndAfterTheMove)
{
    wxDialog dialog(nullptr, wxID_ANY, "guide");
    auto* field = new wxTextCtrl(&dialog, wxID_ANY);

    double number = 0;
    before::AddPrice(field, &number);
    field->SetValue("1234.5");
    EXPECT_TRUE(dialog.TransferDataFromWindow());
    EXPECT_EQ(number, 1234.5);

    wxString price;
    AddPrice(field, &price);
    field->SetValue("1234.5");
    EXPECT_TRUE(dialog.Validate() && dialog.TransferDataFromWindow());
    EXPECT_EQ(price, "1234.5");
    EXPECT_EQ(Shown(price), "1,234.50");
    EXPECT_EQ(ValueOf(price), 1234.5);
    field->SetValue("-1");
    EXPECT_FALSE(dialog.Validate());
}

TEST_F(Guide, LooksUpTheLanguageThatWasSet)
{
    wxFileTranslationsLoader::AddCatalogLookupPathPrefix(wxString::FromUTF8(LIBRARY_LOCALE_DIR));
    UseLanguage(wxLANGUAGE_GERMAN);
    EXPECT_STREQ(lng_util_internal::DoGetResourceString(L"Current folder is:", nullptr), L"Aktueller Ordner:");
}

}  // namespace
