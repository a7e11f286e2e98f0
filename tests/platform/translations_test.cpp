#include <fittings/platform/lng_util.h>

#include <string>

#include <gtest/gtest.h>
#include <wx/init.h>
#include <wx/translation.h>

namespace {

const wchar_t* const kFolderText = L"Current folder is:";

const wchar_t* Look(const wchar_t* key, const wchar_t* domainName = L"")
{
    CLanguageDomain domain(domainName);
    return lng_util_internal::DoGetResourceString(key, &domain);
}

// Starts the toolkit without windows, with the host's catalogues, and with no translations set. The library finds its
// own catalogues in the build tree.
class Translations : public testing::Test
{
protected:
    Translations()
    {
        EXPECT_TRUE(m_toolkit.IsOk());
        wxFileTranslationsLoader::AddCatalogLookupPathPrefix(wxString::FromUTF8(HOST_LOCALE_DIR));
        wxTranslations::Set(nullptr);
    }
    ~Translations() override { wxTranslations::Set(nullptr); }

    // Sets up translations as a host does.
    static wxTranslations* SetLanguage(const wxString& language)
    {
        auto* translations = new wxTranslations;
        wxTranslations::Set(translations);
        translations->SetLanguage(language);
        return translations;
    }

private:
    wxInitializer m_toolkit;
};

struct Language
{
    const char* name;
    const wchar_t* expected;
};

class TranslationsInto : public Translations, public testing::WithParamInterface<Language>
{
};

TEST_P(TranslationsInto, TheHostsLanguage)
{
    SetLanguage(GetParam().name);
    EXPECT_STREQ(Look(kFolderText), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, TranslationsInto,
                         testing::Values(Language{"ar", L"المجلد الحالي:"}, Language{"cs", L"Aktuální složka:"},
                                         Language{"de", L"Aktueller Ordner:"}, Language{"es", L"Carpeta actual:"},
                                         Language{"fr", L"Dossier actuel\x00A0:"}, Language{"it", L"Cartella attuale:"},
                                         Language{"ja", L"現在のフォルダー:"}, Language{"ko", L"현재 폴더:"},
                                         Language{"nl", L"Huidige map:"}, Language{"pl", L"Bieżący folder:"},
                                         Language{"pt_BR", L"Pasta atual:"}, Language{"ru", L"Текущая папка:"},
                                         Language{"tr", L"Geçerli klasör:"}, Language{"uk", L"Поточна тека:"},
                                         Language{"zh_CN", L"当前文件夹："}, Language{"de_AT", L"Aktueller Ordner:"},
                                         Language{"en", L"Current folder is:"},
                                         Language{"en_GB", L"Current folder is:"},
                                         Language{"fi", L"Current folder is:"}),
                         [](const auto& info) { return info.param.name; });

TEST_F(Translations, AreTheKeyWithoutAny)
{
    EXPECT_STREQ(Look(kFolderText), kFolderText);
    EXPECT_STREQ(Look(L"never heard of \x5E33"), L"never heard of \x5E33");
    EXPECT_EQ(wxTranslations::Get(), nullptr);
}

TEST_F(Translations, AreTheKeyOfWhatNoCatalogueHas)
{
    SetLanguage("de");
    EXPECT_STREQ(Look(L"never heard of \x5E33"), L"never heard of \x5E33");
    EXPECT_STREQ(Look(L"current folder is:"), L"current folder is:");
}

TEST_F(Translations, AreNullOfNull)
{
    EXPECT_EQ(lng_util_internal::DoGetResourceString(nullptr, nullptr), nullptr);
    SetLanguage("de");
    EXPECT_EQ(Look(nullptr), nullptr);
}

// A catalogue keeps its header under the empty key, but the translation of the empty text is empty.
TEST_F(Translations, AreEmptyOfTheEmptyKey)
{
    EXPECT_STREQ(Look(L""), L"");
    SetLanguage("de");
    Look(kFolderText);
    EXPECT_STREQ(Look(L""), L"");
}

TEST_F(Translations, FollowAHostThatSetsThemLate)
{
    EXPECT_STREQ(Look(kFolderText), L"Current folder is:");
    SetLanguage("de");
    EXPECT_STREQ(Look(kFolderText), L"Aktueller Ordner:");
    SetLanguage("ja");
    EXPECT_STREQ(Look(kFolderText), L"現在のフォルダー:");
    wxTranslations::Set(nullptr);
    EXPECT_STREQ(Look(kFolderText), L"Current folder is:");
    SetLanguage("en");
    EXPECT_STREQ(Look(kFolderText), L"Current folder is:");
    wxTranslations::Set(nullptr);
    SetLanguage("fr");
    EXPECT_STREQ(Look(kFolderText), L"Dossier actuel\x00A0:");
}

TEST_F(Translations, ComeFromTheHostsCataloguesToo)
{
    wxTranslations* const translations = SetLanguage("de");
    EXPECT_STREQ(Look(L"Balance"), L"Balance");
    ASSERT_TRUE(translations->AddCatalog("ledger"));
    EXPECT_STREQ(Look(L"Balance"), L"Saldo");
    EXPECT_STREQ(Look(kFolderText), L"Aktueller Ordner:");
}

TEST_F(Translations, ComeFromTheNamedCatalogueAlone)
{
    ASSERT_TRUE(SetLanguage("de")->AddCatalog("ledger"));
    EXPECT_STREQ(Look(L"Balance", L"ledger"), L"Saldo");
    EXPECT_STREQ(Look(L"Balance", L"fittings"), L"Balance");
    EXPECT_STREQ(Look(kFolderText, L"fittings"), L"Aktueller Ordner:");
    EXPECT_STREQ(Look(kFolderText, L"ledger"), L"Current folder is:");
    EXPECT_STREQ(Look(kFolderText, L"unheard-of"), L"Current folder is:");
}

TEST_F(Translations, ComeFromEveryCatalogueForANullDomain)
{
    ASSERT_TRUE(SetLanguage("de")->AddCatalog("ledger"));
    EXPECT_STREQ(lng_util_internal::DoGetResourceString(L"Balance", nullptr), L"Saldo");
    EXPECT_STREQ(lng_util_internal::DoGetResourceString(kFolderText, nullptr), L"Aktueller Ordner:");
}

TEST_F(Translations, LeaveACatalogueThatTheHostLoadedAsItIs)
{
    wxTranslations* const translations = SetLanguage("de");
    ASSERT_TRUE(translations->AddCatalog("fittings"));
    translations->SetLanguage("ja");
    EXPECT_STREQ(Look(kFolderText), L"Aktueller Ordner:");
}

// The toolkit first searches the catalogue that was loaded last.
TEST_F(Translations, ComeFromTheHostsCatalogueWhereItWasLoadedLast)
{
    wxTranslations* const translations = SetLanguage("ja");
    ASSERT_TRUE(translations->AddCatalog("fittings"));
    translations->SetLanguage("de");
    ASSERT_TRUE(translations->AddCatalog("archive"));
    EXPECT_STREQ(Look(kFolderText), L"Ablage:");
    EXPECT_STREQ(Look(kFolderText, L"fittings"), L"現在のフォルダー:");
}

TEST_F(Translations, LoadTheCatalogueIntoTheHosts)
{
    wxTranslations* const translations = SetLanguage("de");
    EXPECT_FALSE(translations->IsLoaded("fittings"));
    Look(kFolderText);
    EXPECT_TRUE(translations->IsLoaded("fittings"));
}

TEST_F(Translations, AreTheSamePointerForTheSameText)
{
    const std::wstring copy = kFolderText;
    const wchar_t* const english = Look(kFolderText);
    EXPECT_EQ(Look(copy.c_str()), english);
    EXPECT_NE(english, kFolderText);
    SetLanguage("de");
    const wchar_t* const german = Look(kFolderText);
    EXPECT_EQ(Look(copy.c_str(), L"fittings"), german);
    EXPECT_EQ(Look(L"Aktueller Ordner:"), german);
    EXPECT_NE(german, english);
}

TEST_F(Translations, StayValid)
{
    const wchar_t* english = nullptr;
    {
        const std::wstring key = L"a key that goes";
        english = Look(key.c_str());
    }
    SetLanguage("de");
    const wchar_t* const german = Look(kFolderText);
    wxTranslations::Set(nullptr);
    for (int i = 0; i < 10000; ++i)
        Look(std::to_wstring(i).c_str());
    EXPECT_STREQ(english, L"a key that goes");
    EXPECT_STREQ(german, L"Aktueller Ordner:");
}

}  // namespace
