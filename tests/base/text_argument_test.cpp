// Each text parameter of the library's functions accepts every kind of text. The types of overloads
// and results must not change.

#include <fittings/platform/text_argument.h>

#include <filesystem>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/string.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/folder_dialog.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <tests/platform/store/store_support.h>
#include <tests/support/locale/scoped_locale.h>

namespace {

template <bool first, typename Text, typename Other>
const auto& Choose(const Text& text, const Other& other)
{
    if constexpr (first)
        return text;
    else
        return other;
}

template <std::size_t position, typename Call, typename Text, typename Other, std::size_t... index>
void CallWith(const Call& call, const Text& text, const Other& other, std::index_sequence<index...>)
{
    call(Choose<index == position>(text, other)...);
}

template <typename Call, typename Other, std::size_t... position>
void WithEachKindBeside(const Other& other, const Call& call, std::index_sequence<position...> positions)
{
    (CallWith<position>(call, wxString("a"), other, positions), ...);
    (CallWith<position>(call, L"a", other, positions), ...);
    (CallWith<position>(call, "a", other, positions), ...);
    (CallWith<position>(call, std::string("a"), other, positions), ...);
    (CallWith<position>(call, std::wstring(L"a"), other, positions), ...);
    (CallWith<position>(call, wxString("a").c_str(), other, positions), ...);
    (CallWith<position>(call, wxString("a").wc_str(), other, positions), ...);
}

// Calls @a call with @a count texts, all of them "a". In each call, one parameter gets one of seven kinds of text, and
// all other parameters get the same one of five kinds. There is a call for every combination.
template <std::size_t count, typename Call>
void WithEachKind(const Call& call)
{
    const auto positions = std::make_index_sequence<count>();
    WithEachKindBeside(wxString("a"), call, positions);
    WithEachKindBeside(L"a", call, positions);
    WithEachKindBeside("a", call, positions);
    WithEachKindBeside(std::string("a"), call, positions);
    WithEachKindBeside(std::wstring(L"a"), call, positions);
}

using Wide = const wchar_t*;

TEST(TextsOfAnyKind, ReachNamedFiles)
{
    WithEachKind<4>([](const auto&... texts) {
        ui_config_mgr::WriteConfigString(L"a", L"a", L"a", L"");
        ui_config_mgr::WriteConfigString(texts...);
        ASSERT_EQ(ui_config_mgr::GetConfigString(L"a", L"a", L"a"), L"a");
    });
    WithEachKind<3>([](const auto&... texts) {
        ui_config_mgr::WriteConfigInt(texts..., 12);
        ASSERT_EQ(ui_config_mgr::GetConfigString(texts...), L"12");
        ASSERT_EQ(ui_config_mgr::GetConfigInt(texts...), 12);
    });
    CLocalRegStore::Batch batch;
    WithEachKind<3>([](const auto& file, const auto& section, const auto& key) {
        CLocalRegStore::WriteString(L"a", L"a", L"a");
        ui_config_mgr::DeleteConfig(file, section, key);
        ASSERT_EQ(Stored(L"a", L"a"), L"(none)");
    });
}

TEST(TextsOfAnyKind, ReachTheDefaultStore)
{
    CLocalRegStore::Batch batch;
    WithEachKind<3>([](const auto& section, const auto& key, const auto& text) {
        ASSERT_TRUE(CLocalRegStore::WriteString(section, key, text));
        ASSERT_EQ(Stored(L"a", L"a"), L"a");
        ASSERT_EQ(wxString(CLocalRegStore::GetString(section, key, text)), "a");
        ASSERT_TRUE(CLocalRegStore::DeleteProfile(section, key));
        ASSERT_EQ(wxString(CLocalRegStore::GetString(section, key, text)), "a");
    });
    WithEachKind<2>([](const auto&... texts) {
        ASSERT_TRUE(CLocalRegStore::WriteProfileInt(texts..., 12));
        ASSERT_EQ(CLocalRegStore::GetProfileInt(texts..., 0), 12);
        ASSERT_TRUE(CLocalRegStore::WriteProfileBool(texts..., true));
        ASSERT_TRUE(CLocalRegStore::GetProfileBool(texts..., false));
    });
    WithEachKind<1>([](const auto& section) { ASSERT_EQ(CLocalRegStore::GetKeyNames(section).size(), 1u); });
    batch.Save();
}

TEST(TextsOfAnyKind, ReachAFile)
{
    WithEachKind<3>([](const auto& section, const auto& key, const auto& text) {
        CIniFile* const ini = CLocalRegStore::CreateInitFile(false);
        CLocalRegStore::WriteString(*ini, section, key, text);
        EXPECT_EQ(CLocalRegStore::GetString(*ini, section, key, L""), L"a");
        EXPECT_EQ(CLocalRegStore::GetKeyNames(*ini, section).size(), 1u);
        EXPECT_EQ(CLocalRegStore::GetEntries(*ini, section).size(), 1u);
        EXPECT_TRUE(CLocalRegStore::DeleteKey(*ini, section, key));
        EXPECT_EQ(CLocalRegStore::GetString(*ini, section, key, text), L"a");
        CLocalRegStore::DestroyIniFile(ini);
    });
    const std::filesystem::path earlier = std::filesystem::current_path();
    std::filesystem::current_path(testing::TempDir());
    WithEachKind<1>([](const auto& path) {
        CIniFile* const ini = CLocalRegStore::CreateInitFile(false);
        EXPECT_TRUE(CLocalRegStore::SaveChanges(path, {{L"s", L"k", L"v"}}));
        EXPECT_TRUE(CLocalRegStore::Refresh(*ini, path));
        EXPECT_TRUE(CLocalRegStore::Load(*ini, path));
        EXPECT_TRUE(CLocalRegStore::Save(*ini, path));
        CLocalRegStore::DestroyIniFile(ini);
    });
    std::filesystem::remove("a");
    std::filesystem::remove("a.lock");
    std::filesystem::current_path(earlier);
}

TEST(TextsOfAnyKind, KeepTheirOrder)
{
    ui_config_mgr::WriteConfigString("file.ini", std::string("section"), std::wstring(L"key"), wxString("value"));
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"file.ini", L"section", L"key"), L"value");
    CLocalRegStore::WriteString(L"section", "key", wxString("value"));
    EXPECT_EQ(Stored(L"section", L"key"), L"value");
    EXPECT_EQ(CLocalRegStore::GetString("other", L"key", wxString("default")), L"default");
    CLocalRegStore::WriteProfileInt("section", wxString("number"), 3);
    EXPECT_EQ(Stored(L"section", L"number"), L"3");
}

// Here these calls only need to compile. Other tests run them, on a display or with replaced platform functions.
[[maybe_unused]] void CompilesForDialogsAndWindows(wxFrame* frame, wxAuiManager* panes, wxHandyTreeCtrl& tree)
{
    WithEachKind<5>([](const auto&... texts) { CQVFileDialogI::LaunchSaveDialog(nullptr, texts...); });
    WithEachKind<2>([](const auto&... texts) {
        wxFolderDlg::DoModal(nullptr, texts...);
        wxFolderDlg::DoModalReg(nullptr, texts...);
    });
    WithEachKind<1>([&](const auto& text) {
        wx_window_state::SaveState(frame, text);
        wx_window_state::SaveState(static_cast<wxWindow*>(frame), text);
        wx_window_state::LoadState(frame, text);
        wx_window_state::LoadState(static_cast<wxWindow*>(frame), text);
        wx_window_state::SaveAuiManagerState(panes, text);
        wx_window_state::LoadAuiManagerState(panes, text);
        tree.SetProfile(text);
        tree.SaveState(text, tree.GetSelection());
        tree.LoadState(text, tree.GetSelection());
    });
}

TEST(TextsOfAnyKind, ReachTheSaveDialogsProperties)
{
    WithEachKind<1>([](const auto& text) {
        CQVFileDialogI::SetFileExtension(text);
        EXPECT_EQ(CQVFileDialogI::GetFileExtension(), L"a");
        CQVFileDialogI::SetFileExtension(L"");
        CQVFileDialogI::SetFileFilter(text);
        EXPECT_EQ(CQVFileDialogI::GetFileFilter(), L"a");
        CQVFileDialogI::SetFileFilter(L"");
        CQVFileDialogI::SetRegEntry(text);
        EXPECT_EQ(CQVFileDialogI::SetRegEntry(""), "a");
    });
}

// The library reads narrow text as UTF-8 even in the C locale, in which the toolkit cannot convert such text.
TEST(NarrowTextOfAnyKind, IsUtf8InEachLocale)
{
    const ScopedLocale plain("C");
    CLocalRegStore::WriteString("Größe", L"Kürzel", wxString(L"größer"));
    EXPECT_EQ(Stored(L"Größe", L"Kürzel"), L"größer");
    EXPECT_EQ(CLocalRegStore::GetString(std::string("Größe"), std::string("Kürzel"), std::string()), "größer");
    EXPECT_EQ(CLocalRegStore::GetString("Größe", wxString(L"Kürzel"), ""), "größer");
    ui_config_mgr::WriteConfigString(L"ä.ini", "Größe", "Kürzel", std::string("größer"));
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"ä.ini", L"Größe", L"Kürzel"), L"größer");
    CQVFileDialogI::SetRegEntry(wxString(L"Größe"));
    EXPECT_EQ(CQVFileDialogI::SetRegEntry(""), "Größe");
}

TEST(NarrowTextOfAnyKind, KeepsBytesThatAreNotUtf8InTheDefaultStore)
{
    CLocalRegStore::WriteString(std::string("Bytes"), "key", std::string("\xFF\xFE"));
    EXPECT_EQ(CLocalRegStore::GetString("Bytes", std::string("key"), ""), "\xFF\xFE");
}

TEST(TextsOfAnyKind, EndAtTheirFirstNullCharacter)
{
    CLocalRegStore::WriteString("Nulls", std::wstring(L"wide\0rest", 9), wxString(L"value\0rest", 10));
    EXPECT_EQ(Stored(L"Nulls", L"wide"), L"value");
    CLocalRegStore::WriteString(L"Nulls", std::string("narrow\0rest", 11), L"value");
    EXPECT_EQ(Stored(L"Nulls", L"narrow"), L"value");
}

TEST(TextsOfAnyKind, AreEmptyForANullPointer)
{
    CLocalRegStore::WriteString(wxString("Pointers"), nullptr, static_cast<const char*>(nullptr));
    EXPECT_EQ(Stored(L"Pointers", L""), L"");
    ui_config_mgr::WriteConfigString("null.ini", nullptr, nullptr, "value");
    EXPECT_EQ(ui_config_mgr::GetConfigString(L"null.ini", nullptr, 0), L"value");
}

// These definitions must compile: a host may take the address of an overload by its type, and the types of the results
// must not change.
[[maybe_unused]] constexpr void (*kWriteText)(Wide, Wide, Wide, Wide) = &ui_config_mgr::WriteConfigString;
[[maybe_unused]] constexpr bool (*kLoadFrame)(wxFrame*, Wide) = wx_window_state::LoadState;
[[maybe_unused]] constexpr bool (*kLoadPanes)(wxAuiManager*, Wide) = &wx_window_state::LoadAuiManagerState;
[[maybe_unused]] constexpr wxString (*kAskForFolder)(wxWindow*, Wide, Wide) = &wxFolderDlg::DoModalReg;
[[maybe_unused]] constexpr std::string (*kSetEntry)(const std::string&) = CQVFileDialogI::SetRegEntry;
static_assert(std::is_same_v<decltype(CLocalRegStore::GetString("s", "k", "d")), std::string>);
static_assert(std::is_same_v<decltype(CLocalRegStore::GetString(L"s", L"k", L"d")), std::wstring>);
static_assert(std::is_same_v<decltype(CLocalRegStore::GetString(wxString(), wxString(), wxString())), std::wstring>);
static_assert(std::is_same_v<decltype(CLocalRegStore::GetString(L"s", wxString(), "d")), std::wstring>);

}  // namespace
