#include <filesystem>

#include <glib.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>

#include <gallery/browser/size_filter.h>
#include <gallery/browser/sizes_row.h>
#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
namespace fs = std::filesystem;

// Counts the critical messages of GLib and GTK while the object exists.
class CriticalMessages
{
public:
    CriticalMessages() : m_before(g_log_set_default_handler(&OnMessage, this)) {}
    ~CriticalMessages() { g_log_set_default_handler(m_before, nullptr); }
    CriticalMessages(const CriticalMessages&) = delete;
    CriticalMessages& operator=(const CriticalMessages&) = delete;

    int Count() const { return m_count; }

private:
    static void OnMessage(const gchar* domain, GLogLevelFlags level, const gchar* text, gpointer self)
    {
        if ((level & G_LOG_LEVEL_CRITICAL) != 0)
            ++static_cast<CriticalMessages*>(self)->m_count;
        g_log_default_handler(domain, level, text, nullptr);
    }

    GLogFunc m_before;
    int m_count = 0;
};

class SizeFilterTest : public BrowserTest
{
protected:
    void SetUp() override
    {
        MakeFile("3 MB", 3000000);
        MakeFile("1.5 MB", 1500000);
        MakeFile("almost", 1499999);
        MakeFile("empty", 0);
        MakeFile("large folder/file", 1600000);
        MakeFile("small folder/file", 10);
        fs::create_symlink("3 MB", temp / "link");
        Open(root);
    }

    // Makes a sparse file, which takes no space on the disk.
    void MakeFile(const std::string& name, std::uintmax_t size)
    {
        fs::create_directories(fs::path(temp / name).parent_path());
        WriteFile(temp / name, "");
        fs::resize_file(temp / name, size);
    }

    void Type(const std::string& text)
    {
        for (const char key : text)
            Press(key);
        PumpPending();
    }

    void Filter(const std::string& megabytes)
    {
        Press('L', wxMOD_ALT);
        ASSERT_TRUE(PumpUntil([this] { return Field().HasFocus(); }));
        Type(megabytes);
    }

    bool RowsBecome(const Strings& names)
    {
        return PumpUntil([&] { return Rows() == names; });
    }

    wxTextCtrl& Field() { return *frame->GetBrowser()->GetFilter()->GetField(); }
    wxString Status(int field) { return frame->GetStatusBar()->GetStatusText(field); }

    const Strings all{"large folder", "small folder", "1.5 MB", "3 MB", "almost", "empty", "link"};
};

TEST_F(SizeFilterTest, ListsAllWithoutANumber)
{
    EXPECT_EQ(Rows(), all);
    EXPECT_EQ(Field().GetValue(), "");
    EXPECT_FALSE(Status(0).Contains("showing"));
}

TEST_F(SizeFilterTest, LeavesOutWhatIsSmallerWithEachKey)
{
    Filter("1");
    EXPECT_TRUE(RowsBecome({"large folder", "1.5 MB", "3 MB", "almost"}));
    Type(".");
    EXPECT_TRUE(RowsBecome({"large folder", "1.5 MB", "3 MB", "almost"}));
    Type("5");
    EXPECT_TRUE(RowsBecome({"large folder", "1.5 MB", "3 MB"}));
    EXPECT_TRUE(Status(0).EndsWith("; showing 3 of at least 1.5 MB")) << Status(0);
    Press(WXK_BACK);
    EXPECT_TRUE(RowsBecome({"large folder", "1.5 MB", "3 MB", "almost"}));
    Press(WXK_BACK);
    Press(WXK_BACK);
    EXPECT_TRUE(RowsBecome(all));
    EXPECT_FALSE(Status(0).Contains("showing"));
}

TEST_F(SizeFilterTest, GoesDownToAByte)
{
    Filter("0.000001");
    EXPECT_TRUE(RowsBecome({"large folder", "small folder", "1.5 MB", "3 MB", "almost"}));
    EXPECT_EQ(frame->GetBrowser()->GetFilter()->GetMinimum(), 1u);
    Press(WXK_BACK);
    EXPECT_TRUE(RowsBecome(all)) << "a minimum of 0 hides nothing";
}

TEST_F(SizeFilterTest, RefusesWhatIsNoSize)
{
    Filter("-+x1e,2.3456789");
    EXPECT_EQ(Field().GetValue(), "12.345678");
    Press('A', wxMOD_CONTROL);
    Type("1234567890");
    EXPECT_EQ(Field().GetValue(), "123456789");
    EXPECT_EQ(frame->GetBrowser()->GetFilter()->GetMinimum(), 123456789000000u);
}

// SetValue() accepts any text. A text that is not an acceptable number does not filter the list.
TEST_F(SizeFilterTest, TakesPastedNonsenseForNoNumber)
{
    for (const char* pasted : {"abc", "1e3", "-5", ".", "12 34", "nan", "inf", "0x10"}) {
        Field().SetValue(pasted);
        EXPECT_EQ(frame->GetBrowser()->GetFilter()->GetMinimum(), 0u) << pasted;
        EXPECT_EQ(Rows(), all) << pasted;
    }
}

TEST_F(SizeFilterTest, EscapeEmptiesIt)
{
    Filter("2");
    ASSERT_TRUE(RowsBecome({"3 MB"}));
    Press(WXK_ESCAPE);
    EXPECT_TRUE(RowsBecome(all));
    EXPECT_EQ(Field().GetValue(), "");
    EXPECT_TRUE(Field().HasFocus());
}

// The process is in the C locale, which has no thousands separator. Even so, the digits are grouped.
TEST_F(SizeFilterTest, ShowsTheNumberWithItsDigitsGrouped)
{
    Filter("1234567.50");
    EXPECT_TRUE(RowsBecome({}));
    EXPECT_TRUE(Status(0).EndsWith(L"; showing 0 of at least 1\u00A0234\u00A0567.5 MB")) << Status(0);
}

TEST_F(SizeFilterTest, FoldersGoAsTheyProveTooSmall)
{
    for (int i = 0; i < 50; ++i)
        MakeFile("many/" + std::to_string(i) + "/file", i == 30 ? 5000000 : 5);
    Filter("4");
    Press(WXK_F5);
    EXPECT_TRUE(RowsBecome({"many"}));
    Select("many");
    EXPECT_TRUE(RowsBecome({"30"}));
    EXPECT_TRUE(Status(0).EndsWith("50 items; showing 1 of at least 4 MB")) << Status(0);
}

TEST_F(SizeFilterTest, TheSelectedEntryStaysSelectedWhileItIsListed)
{
    Click(CentreOf(NameRect(List(), RowOf("3 MB"))));
    ASSERT_TRUE(PumpUntil([&] { return List().GetSelectedEntry() != nullptr; }));
    Filter("2");
    ASSERT_TRUE(RowsBecome({"3 MB"}));
    ASSERT_TRUE(List().GetSelectedEntry());
    EXPECT_EQ(List().GetSelectedEntry()->name, "3 MB");
    EXPECT_TRUE(Status(1).StartsWith("3 MB: ")) << Status(1);
    Type("0");
    ASSERT_TRUE(RowsBecome({}));
    EXPECT_FALSE(List().GetSelectedEntry());
    EXPECT_EQ(Status(1), "");
}

// While rows are being removed, a wxDataViewCtrl can return a selected row that no longer exists. Therefore
// ContentsList must send no selection event during the removal.
TEST_F(SizeFilterTest, TheSelectedFolderMayProveTooSmall)
{
    ASSERT_TRUE(PumpUntil([&] { return !frame->GetBrowser()->GetSizes()->IsRunning(); }));
    const auto folder = [](const char* name) {
        Entry entry;
        entry.name = entry.sortKey = name;
        entry.kind = EntryKind::Folder;
        return entry;
    };
    Filter("2");
    List().SetEntries({folder("a"), folder("b"), folder("c")});
    List().SelectEntry("c");
    ASSERT_TRUE(List().GetSelectedEntry());
    CriticalMessages messages;
    int selections = 0;
    List().Bind(wxEVT_DATAVIEW_SELECTION_CHANGED, [&selections](wxDataViewEvent&) { ++selections; });
    List().SetFolderSizes({{"a", {10, 1, 0}}, {"b", {3000000, 1, 0}}, {"c", {10, 1, 0}}});
    EXPECT_EQ(Rows(), Strings{"b"});
    EXPECT_EQ(selections, 0);
    PumpPending();
    EXPECT_EQ(messages.Count(), 0);
}

TEST_F(SizeFilterTest, SortingKeepsItAndItKeepsTheOrder)
{
    Filter("1");
    ASSERT_TRUE(RowsBecome({"large folder", "1.5 MB", "3 MB", "almost"}));
    Click(CentreOf(HeaderRect(List(), SortColumn::Size)));
    EXPECT_TRUE(RowsBecome({"large folder", "almost", "1.5 MB", "3 MB"}));
    Click(CentreOf(HeaderRect(List(), SortColumn::Size)));
    EXPECT_TRUE(RowsBecome({"large folder", "3 MB", "1.5 MB", "almost"}));
    Press('L', wxMOD_ALT);
    Press('A', wxMOD_CONTROL);
    Press(WXK_BACK);
    EXPECT_TRUE(RowsBecome({"large folder", "small folder", "3 MB", "1.5 MB", "almost", "empty", "link"}));
}

TEST_F(SizeFilterTest, HoldsInEachFolderAndOnTheWayBack)
{
    Filter("2");
    ASSERT_TRUE(RowsBecome({"3 MB"}));
    Select("large folder");
    EXPECT_TRUE(RowsBecome({}));
    Press(WXK_UP, wxMOD_ALT);
    ASSERT_TRUE(SelectionComesTo(""));
    EXPECT_TRUE(RowsBecome({"3 MB"}));
}

TEST_F(SizeFilterTest, ComesBack)
{
    Filter("1.5");
    ASSERT_TRUE(RowsBecome({"large folder", "1.5 MB", "3 MB"}));
    Close();
    EXPECT_NE(ReadFile(settings / "ui_config/browser.ini").find("AtLeastMB=1.5\n"), std::string::npos);
    Open("");
    EXPECT_EQ(Field().GetValue(), "1.5");
    EXPECT_TRUE(RowsBecome({"large folder", "1.5 MB", "3 MB"}));
    Filter("\x1B");
    EXPECT_TRUE(RowsBecome(all));
    OpenNextSession();
    EXPECT_EQ(Field().GetValue(), "");
    EXPECT_TRUE(RowsBecome(all));
}

TEST_F(SizeFilterTest, NonsenseInTheSettingsIsNoNumber)
{
    Close();
    WriteFile(settings / "ui_config/browser.ini", "[Contents]\nAtLeastMB=12abc\n");
    Open(root);
    EXPECT_TRUE(RowsBecome(all));
}

}  // namespace
