// The examples of docs/guides, word for word.

#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include <wx/dialog.h>
#include <wx/fileconf.h>
#include <wx/frame.h>
#include <wx/intl.h>
#include <wx/persist/toplevel.h>
#include <wx/textctrl.h>
#include <wx/translation.h>
#include <wx/valnum.h>

#include <fittings/config/store_config.h>
#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/numedit/num_validator.h>
#include <fittings/numedit/number_edit_utils.h>
#include <fittings/platform/lng_util.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/support/gui.h>
#include <tests/support/locale/scoped_locale.h>
#include <tests/support/temp_folder.h>

namespace {

wxFrame* NewFrame(const wxRect& rect)
{
    return new wxFrame(nullptr, wxID_ANY, "guide", rect.GetPosition(), rect.GetSize());
}

namespace before {

void Remember(wxFrame* frame)
{
    // When the frame is destroyed, its place and size are written to wxConfig.
    wxPersistentRegisterAndRestore(frame, "Main");
}

void SaveSearch(wxConfigBase& config, const wxString& text, int pageSize)
{
    config.Write("/Search/LastText", text);
    config.Write("/Search/PageSize", pageSize);
    config.Flush();
}

void AddPrice(wxTextCtrl* field, double* price)
{
    wxFloatingPointValidator<double> validator(2, price, wxNUM_VAL_THOUSANDS_SEPARATOR);
    validator.SetRange(0, 99999);
    field->SetValidator(validator);
}

void SaveSettings(wxConfigBase& config, wxFrame* frame, const wxString& folder, bool whole, int pageSize, double zoom)
{
    const wxRect place = frame->GetRect();
    config.Write("/Main/x", place.x);
    config.Write("/Main/y", place.y);
    config.Write("/Main/w", place.width);
    config.Write("/Main/h", place.height);
    config.Write("/Search/Folder", folder);
    config.Write("/Search/WholeWords", whole);
    config.Write("/Search/PageSize", pageSize);
    config.Write("/View/Zoom", zoom);
    config.Flush();
}

}  // namespace before

void Remember(wxFrame* frame)
{
    wx_window_state::LoadState(frame, L"Main");
    frame->Bind(wxEVT_CLOSE_WINDOW, [frame](wxCloseEvent& event) {
        wx_window_state::SaveState(frame, L"Main");
        event.Skip();
    });
}

void TakeOver(wxFrame* frame)
{
    if (wx_window_state::LoadState(frame, L"Main"))
        return;
    // At the first start of the new version, read the geometry that the earlier version has stored.
    const wxConfigBase& earlier = *wxConfigBase::Get();
    const wxString path = "/Persistent_Options/Window/Main/";
    wxRect rect;
    if (earlier.Read(path + "x", &rect.x) && earlier.Read(path + "y", &rect.y) &&
        earlier.Read(path + "w", &rect.width) && earlier.Read(path + "h", &rect.height))
        frame->SetSize(rect);
    if (earlier.ReadBool(path + "Maximized", false))
        wx_window_state::MaximizeFrame(frame);
}

void SaveSearch(const wxString& text, int pageSize)
{
    // All windows and processes of the program share this value. It is on the disk when the call returns true.
    CLocalRegStore::WriteString(L"Search", L"LastText", text);
    // This value is in a separate file, ui_config/search.ini.
    ui_config_mgr::WriteConfigInt(L"search.ini", L"Search", L"PageSize", pageSize);
}

void TakeOver(wxConfigBase& earlier)
{
    wxString group;
    long groups = 0;
    for (bool more = earlier.GetFirstGroup(group, groups); more; more = earlier.GetNextGroup(group, groups)) {
        const wxConfigPathChanger inGroup(&earlier, "/" + group + "/");
        wxString key;
        long keys = 0;
        for (bool next = earlier.GetFirstEntry(key, keys); next; next = earlier.GetNextEntry(key, keys))
            CLocalRegStore::WriteString(group, key, earlier.Read(key));
    }
}

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
    wxString number = price;
    number.Replace(wxLocale::GetInfo(wxLOCALE_DECIMAL_POINT), ".");  // the validator also accepts the locale's point
    double value = 0;
    return number.ToCDouble(&value) ? value : 0;  // 0 for "", "-" and ".", which the validator accepts too
}

wxString TextOf(double value, const CNumberFormat& format)
{
    const auto decimals = format.m_bHasDecimals ? std::min<std::uint64_t>(format.m_nDecimals, 15) : 0;
    wxString text = wxString::FromDouble(value, static_cast<int>(decimals));
    text.Replace(wxLocale::GetInfo(wxLOCALE_DECIMAL_POINT), wxString(format.m_chDecimalPoint));
    return text;
}

std::optional<double> NumberIn(wxString text, const CNumberFormat& format)
{
    text.Replace(wxString(format.m_chDecimalPoint), ".");
    text.Replace(wxLocale::GetInfo(wxLOCALE_DECIMAL_POINT), ".");  // the field accepts this point too
    double value = 0;
    return text.ToCDouble(&value) ? std::optional(value) : std::nullopt;
}

void EditPrice(wxDialog& dialog, wxTextCtrl* field, double& price)
{
    CNumberFormat format(eLocaleFormat);
    format.m_bHasDecimals = true;
    format.m_nDecimals = 2;
    wxString text = TextOf(price, format);
    field->SetValidator(wxNumValidator(format, &text));
    if (dialog.ShowModal() == wxID_OK)
        price = NumberIn(text, format).value_or(price);
    field->SetValidator(wxDefaultValidator);  // the removed validator has a pointer to the local variable "text"
}

wxString WithUnit(const wxString& number, wxString unit)
{
    unit.Replace("%", "%%");  // the user's text must not act as a format
    CNumberFormat format(eFixedFormat);
    format.m_strTemplate = ("%s " + unit).wc_str();
    return CNumberEditUtils::FormatControlText(number.wc_str(), format);
}

void UseStore(wxConfigBase& earlier)
{
    auto store = std::make_unique<wxStoreConfig>();
    // Takes over what users have stored, once. If saving fails, the next start tries again.
    store->ImportFrom(earlier);
    // The toolkit deletes the new configuration when the program ends.
    delete wxConfigBase::Set(store.release());
}

double ReadNumber(const wchar_t* section, const wchar_t* key, double otherwise)
{
    double value = 0;
    return wxString(CLocalRegStore::GetString(section, key, L"")).ToCDouble(&value) ? value : otherwise;
}

bool WriteNumber(const wchar_t* section, const wchar_t* key, double value)
{
    char text[32];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, value);  // the same in every locale
    return CLocalRegStore::WriteString(section, key, wxString::FromAscii(text, end.ptr - text));
}

void SaveSettings(wxFrame* frame, const wxString& folder, bool whole, int pageSize, double zoom)
{
    CLocalRegStore::Batch batch;  // saves all of the following together
    wx_window_state::SaveState(frame, L"Main");
    CLocalRegStore::WriteString(L"Search", L"Folder", folder);
    CLocalRegStore::WriteProfileBool(L"Search", L"WholeWords", whole);
    CLocalRegStore::WriteProfileInt(L"Search", L"PageSize", pageSize);
    WriteNumber(L"View", L"Zoom", zoom);
}

void TakeOverGroup(wxConfigBase& earlier)
{
    const wxString path = earlier.GetPath().Mid(1);  // "Search", or "View/Colours"
    wxString name;
    long place = 0;
    for (bool more = earlier.GetFirstEntry(name, place); more; more = earlier.GetNextEntry(name, place))
        CLocalRegStore::WriteString(path, name, earlier.Read(name));
    for (bool more = earlier.GetFirstGroup(name, place); more; more = earlier.GetNextGroup(name, place)) {
        const wxConfigPathChanger inGroup(&earlier, name + "/");
        TakeOverGroup(earlier);
    }
}

void TakeOverOnce(wxConfigBase& earlier)
{
    if (CLocalRegStore::GetProfileBool(L"Settings", L"TakenOver", false))
        return;
    CLocalRegStore::Batch batch;  // saves all of the following or nothing
    TakeOverGroup(earlier);
    CLocalRegStore::WriteProfileBool(L"Settings", L"TakenOver", true);
}

void UseLanguage(wxLanguage language)
{
    auto* translations = new wxTranslations;
    wxTranslations::Set(translations);
    translations->SetLanguage(language);   // wxLANGUAGE_DEFAULT is the user's language
    translations->AddCatalog("fittings");  // before the program's own catalogue, which takes precedence
    translations->AddCatalog("planets");
}

// The toolkit's current configuration is a wxFileConfig in a temporary folder. The store uses a temporary user data
// directory.
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
    DestroyNow(frame);

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
    DestroyNow(frame);

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

TEST_F(Guide, ReadsThePriceThatAUserTypesInTheLocalesWay)
{
    const ScopedLocale german("de_DE.UTF-8");
    wxDialog dialog(nullptr, wxID_ANY, "guide");
    auto* field = new wxTextCtrl(&dialog, wxID_ANY);
    wxString price;
    AddPrice(field, &price);
    for (const char* const typed : {"9,95", "9.95"}) {
        field->SetValue(typed);
        EXPECT_TRUE(dialog.Validate() && dialog.TransferDataFromWindow());
        EXPECT_EQ(ValueOf(price), 9.95) << typed;
    }
    for (const char* const typed : {"", "."}) {
        field->SetValue(typed);
        EXPECT_TRUE(dialog.Validate() && dialog.TransferDataFromWindow()) << typed;
        EXPECT_EQ(ValueOf(price), 0) << typed;
    }
}

TEST_F(Guide, MakesATextOfANumberAndBack)
{
    const auto format = [](EGeneralFormat preset) {
        CNumberFormat result(preset);
        result.m_bHasDecimals = true;
        result.m_nDecimals = 2;
        return result;
    };
    for (const EGeneralFormat preset : {eLocaleFormat, eFixedFormat}) {
        EXPECT_EQ(TextOf(-1234.567, format(preset)), "-1234.57");
        EXPECT_EQ(NumberIn("-1234.57", format(preset)), -1234.57);
        EXPECT_FALSE(NumberIn("-", format(preset)));
    }
    const ScopedLocale german("de_DE.UTF-8");
    EXPECT_EQ(TextOf(9.95, format(eLocaleFormat)), "9,95");
    EXPECT_EQ(TextOf(9.95, format(eFixedFormat)), "9.95");
    EXPECT_EQ(NumberIn("9,95", format(eLocaleFormat)), 9.95);
    EXPECT_EQ(NumberIn("9,95", format(eFixedFormat)), 9.95);
    EXPECT_EQ(NumberIn("9.95", format(eFixedFormat)), 9.95);
}

TEST_F(Guide, EditsANumberInADialog)
{
    const ScopedLocale german("de_DE.UTF-8");
    wxDialog dialog(nullptr, wxID_ANY, "guide");
    auto* field = new wxTextCtrl(&dialog, wxID_ANY);
    double price = 9.95;
    const auto edit = [&](const char* typed) {
        wxString before;
        dialog.CallAfter([&, typed] {
            before = field->GetValue();
            field->SetValue(typed);
            EXPECT_TRUE(dialog.Validate() && dialog.TransferDataFromWindow());
            dialog.EndModal(wxID_OK);
        });
        EditPrice(dialog, field, price);
        return before;
    };
    EXPECT_EQ(edit("12,5"), "9,95");
    EXPECT_EQ(price, 12.5);
    EXPECT_EQ(edit("-"), "12,50");
    EXPECT_EQ(price, 12.5);
}

TEST_F(Guide, TakesAUnitFromAUser)
{
    EXPECT_EQ(WithUnit("1234.5", "kg"), "1,234.50 kg");
    EXPECT_EQ(WithUnit("1234.5", "%s%n"), "1,234.50 %s%n");
}

TEST_F(Guide, TakesOverAllThatAProgramHasStored)
{
    wxFrame* frame = NewFrame(m_somewhere);
    before::SaveSettings(m_config, frame, L"/home/caf\x00E9", true, 50, 1.25);
    m_config.Write("/View/Colours/Line", "#FF6820");
    m_config.Write("Name", "Ada");
    TakeOverOnce(m_config);
    EXPECT_EQ(m_config.GetPath(), "");
    EXPECT_EQ(CLocalRegStore::GetString(L"Search", L"Folder", L""), L"/home/caf\x00E9");
    EXPECT_TRUE(CLocalRegStore::GetProfileBool(L"Search", L"WholeWords", false));
    EXPECT_EQ(CLocalRegStore::GetProfileInt(L"Search", L"PageSize", 10), 50);
    EXPECT_EQ(ReadNumber(L"View", L"Zoom", 1), 1.25);
    EXPECT_EQ(ReadNumber(L"View", L"Missing", 1), 1);
    EXPECT_EQ(CLocalRegStore::GetString(L"View/Colours", L"Line", L""), L"#FF6820");
    EXPECT_EQ(CLocalRegStore::GetString(L"", L"Name", L""), L"Ada");

    SaveSettings(frame, "/home/ada", false, 25, 0.5);
    TakeOverOnce(m_config);
    EXPECT_EQ(CLocalRegStore::GetString(L"Search", L"Folder", L""), L"/home/ada");
    EXPECT_FALSE(CLocalRegStore::GetProfileBool(L"Search", L"WholeWords", true));
    EXPECT_EQ(CLocalRegStore::GetProfileInt(L"Search", L"PageSize", 10), 25);
    EXPECT_EQ(ReadNumber(L"View", L"Zoom", 1), 0.5);
    EXPECT_EQ(CLocalRegStore::GetString(L"wxWindowState", L"Main", L""), L"160;120;420;310");
    frame->Destroy();
}

TEST_F(Guide, GoesOnWithTheStoreAsItsConfiguration)
{
    wxConfigBase* const former = wxConfigBase::Set(nullptr);
    auto* const earlier = new wxFileConfig("guide", "", "guide-earlier", "", wxCONFIG_USE_LOCAL_FILE);
    earlier->Write("/Search/Folder", "/home/ada");
    earlier->Write("Name", "Ada");
    wxConfigBase::Set(earlier);
    UseStore(*wxConfigBase::Get());
    EXPECT_EQ(wxConfigBase::Get()->Read("/Search/Folder"), "/home/ada");
    EXPECT_EQ(CLocalRegStore::GetString(L"", L"Name", L""), L"Ada");
    delete wxConfigBase::Set(former);
}

TEST_F(Guide, ReadsAStoredNumberInAnyLocale)
{
    const ScopedLocale german("de_DE.UTF-8");
    WriteNumber(L"View", L"Zoom", 1.25);
    EXPECT_EQ(CLocalRegStore::GetString(L"View", L"Zoom", L""), L"1.25");
    EXPECT_EQ(ReadNumber(L"View", L"Zoom", 1), 1.25);
}

TEST_F(Guide, LooksUpTheLanguageThatWasSet)
{
    UseLanguage(wxLANGUAGE_GERMAN);
    EXPECT_STREQ(lng_util_internal::DoGetResourceString(L"Current folder is:", nullptr), L"Aktueller Ordner:");
}

}  // namespace
