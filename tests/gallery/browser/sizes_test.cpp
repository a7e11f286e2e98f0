#include <gallery/browser/sizes_row.h>

#include <chrono>
#include <filesystem>
#include <set>

#include <wx/button.h>
#include <wx/gauge.h>

#include <gallery/folders/native_text.h>
#include <gallery/folders/size_worker.h>
#include <tests/gallery/browser/browser_fixture.h>
#include <tests/gallery/folders/listed_size.h>
#include <tests/support/patience.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
namespace fs = std::filesystem;

std::size_t CountThreads()
{
    return NamesIn("/proc/self/task").size();
}

class Sizes : public BrowserTest
{
protected:
    void SetUp() override
    {
        for (const char* const path : {"docs/letters/old", "docs/taxes", "music"})
            fs::create_directories(temp / path);
        WriteFile(temp / "big.bin", std::string(30000, 'x'));
        WriteFile(temp / "docs/taxes/2025", std::string(20000, 'x'));
        WriteFile(temp / "docs/note.txt", "hello");
    }

    SizesRow& Row() { return *frame->GetBrowser()->GetSizes(); }
    bool ComesToRest()
    {
        return PumpUntil([&] { return !Row().IsRunning(); });
    }
    const Entry& EntryNamed(const std::string& name) { return List().GetEntry(RowOf(name)); }

    // Makes a folder whose size takes a while to add up, and returns the path of the folder.
    std::string MakeLargeFolder()
    {
        for (int i = 0; i < 40; ++i) {
            for (int j = 0; j < 500; ++j)
                fs::create_directories(memory / (std::to_string(i) + "/" + std::to_string(j)));
        }
        return memory.Path();
    }

    InMemory inMemory;
    TempFolder memory;
};

TEST_F(Sizes, EveryFolderGetsWhatItHolds)
{
    Open(root);
    ASSERT_TRUE(ComesToRest());
    EXPECT_TRUE(EntryNamed("docs").summed);
    EXPECT_EQ(EntryNamed("docs").size, ListedSize(temp / "docs"));
    EXPECT_EQ(EntryNamed("music").size, ListedSize(temp / "music"));
    EXPECT_EQ(EntryNamed("big.bin").size, 30000u);
    const wxString sum = HumanSize(ListedSize(root));
    EXPECT_TRUE(Row().GetText().StartsWith(sum + " in 9 items, ")) << Row().GetText();
    EXPECT_TRUE(Row().GetText().EndsWith(L" a second \u2013 done")) << Row().GetText();
}

TEST_F(Sizes, ASummedFolderSaysItsSizeWhenSelected)
{
    Open(root);
    ASSERT_TRUE(ComesToRest());
    Click(CentreOf(NameRect(List(), RowOf("docs"))));
    EXPECT_TRUE(PumpUntil(
        [&] { return frame->GetStatusBar()->GetStatusText(1) == "docs: " + ExactSize(ListedSize(temp / "docs")); }));
}

TEST_F(Sizes, AnotherFolderIsAddedUpInItsTurn)
{
    Open(root);
    ASSERT_NO_FATAL_FAILURE(ClickFolder("docs"));
    ASSERT_TRUE(ComesToRest());
    EXPECT_EQ(EntryNamed("taxes").size, ListedSize(temp / "docs/taxes"));
    EXPECT_TRUE(Row().GetText().Contains(" in 6 items, ")) << Row().GetText();
}

TEST_F(Sizes, ChangingFoldersDuringTheWorkLeavesNothingOfTheFirst)
{
    Open(MakeLargeFolder());
    for (int i = 0; i < 10; ++i) {
        Row().Start(memory.Path());
        Row().Start(temp / "docs");
        ASSERT_TRUE(ComesToRest());
        PumpPending();
        EXPECT_TRUE(Row().GetText().Contains(" in 6 items, ")) << Row().GetText();
    }
}

TEST_F(Sizes, TheBarMovesWhileFoldersAreAddedUp)
{
    Open(MakeLargeFolder());
    ASSERT_TRUE(ComesToRest());
    Row().Start(memory.Path());
    std::set<int> values;
    ASSERT_TRUE(PumpUntil(
        [&] {
            if (Row().GetBar()->IsShown())
                values.insert(Row().GetBar()->GetValue());
            return !Row().IsRunning();
        },
        20000));
    EXPECT_GE(values.size(), 3u);
    EXPECT_FALSE(Row().GetBar()->IsShown());
}

TEST_F(Sizes, FoldersFindTheirPlaceBySizeWhenAllAreKnown)
{
    Open(root);
    List().SortBy({SortColumn::Size, false});
    ASSERT_TRUE(ComesToRest());
    EXPECT_TRUE(PumpUntil([&] { return Rows() == Strings{"docs", "music", "big.bin"}; }));
    List().SortBy({SortColumn::Size, true});
    frame->GetBrowser()->RefreshFolders();
    ASSERT_TRUE(ComesToRest());
    EXPECT_TRUE(PumpUntil([&] { return Rows() == Strings{"music", "docs", "big.bin"}; }));
}

TEST_F(Sizes, TheButtonStopsAndStartsAgain)
{
    Open(MakeLargeFolder());
    ASSERT_TRUE(ComesToRest());
    const wxPoint button = CentreOf(WindowRect(*Row().GetButton()));
    EXPECT_EQ(Row().GetButton()->GetLabelText(), "Add up");
    Click(button);
    ASSERT_TRUE(PumpUntil([&] { return Row().IsRunning() || Row().GetText().EndsWith("done"); }));
    ASSERT_TRUE(ComesToRest());
    EXPECT_TRUE(Row().GetText().Contains(GroupedNumber(20041) + " items")) << Row().GetText();
}

TEST_F(Sizes, StoppingTakesAMomentAndKeepsWhatIsKnown)
{
    Open(MakeLargeFolder());
    ASSERT_TRUE(ComesToRest());
    // On a busy machine, the worker may finish before the window has received an event. In that case, start the worker
    // again.
    ASSERT_TRUE(PumpUntil([&] {
        if (!Row().IsRunning())
            Row().Start(memory.Path());
        return PumpUntil([&] { return Row().GetBar()->GetValue() > 0 || !Row().IsRunning(); }) && Row().IsRunning();
    }));
    EXPECT_EQ(Row().GetButton()->GetLabelText(), "Stop");

    wxCommandEvent click(wxEVT_BUTTON, Row().GetButton()->GetId());
    const auto start = std::chrono::steady_clock::now();
    Row().GetButton()->ProcessWindowEvent(click);
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    RecordProperty("milliseconds_to_stop", static_cast<int>(taken.count()));
    EXPECT_LE(taken.count(), Patience() * 100);
    EXPECT_FALSE(Row().IsRunning());
    EXPECT_TRUE(Row().GetText().EndsWith(L"\u2013 stopped")) << Row().GetText();
    EXPECT_EQ(Row().GetButton()->GetLabelText(), "Add up");

    const wxString text = Row().GetText();
    PumpPending();
    EXPECT_EQ(Row().GetText(), text);
    EXPECT_FALSE(text.Contains(GroupedNumber(20041)));
}

TEST_F(Sizes, ClosingTheWindowEndsTheWork)
{
    const std::string large = MakeLargeFolder();
    Open(root);
    ASSERT_TRUE(ComesToRest());
    ASSERT_TRUE(PumpUntil([before = CountThreads()] { return CountThreads() <= before; }));
    const std::size_t threads = CountThreads();
    Row().Start(large);
    ASSERT_TRUE(Row().IsRunning());
    Close();
    EXPECT_TRUE(PumpUntil([&] { return CountThreads() <= threads; }));
}

TEST_F(Sizes, AFolderThatIsGoneHasOneUnreadableItem)
{
    Open(root);
    Row().Start(temp / "gone");
    ASSERT_TRUE(ComesToRest());
    EXPECT_TRUE(Row().GetText().Contains(", 1 unreadable")) << Row().GetText();
}

// Counts the events of a SizeWorker. Expects each event to contain 7, the number that the tests give to the worker.
class Counter : public wxEvtHandler
{
public:
    Counter()
    {
        Bind(type, [this](wxCommandEvent& event) {
            EXPECT_EQ(event.GetInt(), 7);
            ++events;
        });
    }

    const wxEventTypeTag<wxCommandEvent> type{wxNewEventType()};
    int events = 0;
};

TEST_F(Sizes, AWorkerWaitsWithItsNextEventUntilTheNewsAreTaken)
{
    Counter counter;
    SizeWorker worker(&counter, counter.type, 7, MakeLargeFolder());
    ASSERT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
    worker.Wait();
    PumpPending();
    EXPECT_EQ(counter.events, 1);

    const SizeNews news = worker.TakeNews();
    EXPECT_TRUE(news.done);
    EXPECT_EQ(news.fraction, 1.0);
    EXPECT_EQ(news.folders.size(), 40u);
    EXPECT_EQ(news.soFar.items, 20041u);
    EXPECT_TRUE(worker.TakeNews().folders.empty());
}

TEST_F(Sizes, AWorkerCanGoDuringItsWork)
{
    Counter counter;
    SizeWorker running(&counter, counter.type, 7, MakeLargeFolder());
    ASSERT_EQ(running.RunThread(), wxTHREAD_NO_ERROR);
    ASSERT_TRUE(PumpUntil([&] { return counter.events > 0; }));
}

}  // namespace
