// These tests use each sample as a user does.

#include <filesystem>
#include <functional>
#include <optional>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <tests/samples/sample_in_use.h>
#include <tests/support/becomes.h>
#include <tests/support/xdotool.h>

namespace {

namespace fs = std::filesystem;

TEST(ConfigSample, ComesBackWhereItWasAndWithWhatWasTyped)
{
    const Person person;
    std::string geometry;
    {
        SampleInUse notes("config", "Notes", person);
        notes.Resize(500, 400);
        notes.Move(210, 160);
        notes.Type("Feed the cat");
        EXPECT_TRUE(Becomes([&] { return notes.Geometry().find(" 500 400") != std::string::npos; }));
        geometry = notes.Geometry();
        notes.Close();
    }
    EXPECT_NE(person.FileOf("config", "ui_config/notes.ini").find("Text=Feed the cat"), std::string::npos);
    SampleInUse notes("config", "Notes", person);
    EXPECT_TRUE(Becomes([&] { return notes.Geometry() == geometry; })) << notes.Geometry() << " not " << geometry;
    notes.Type("Also, ");
    notes.Close();
    EXPECT_NE(person.FileOf("config", "ui_config/notes.ini").find("Text=Also, Feed the cat"), std::string::npos);
}

TEST(ConfigSample, ComesBackMaximised)
{
    const Person person;
    {
        SampleInUse notes("config", "Notes", person);
        EXPECT_FALSE(notes.IsMaximised());
        notes.Press("alt+F10");
        EXPECT_TRUE(Becomes([&] { return notes.IsMaximised(); }));
        notes.Close();
    }
    SampleInUse notes("config", "Notes", person);
    EXPECT_TRUE(Becomes([&] { return notes.IsMaximised(); }));
    notes.Close();
}

TEST(ConfigSample, KeepsTheHeightThatAPaneWasGiven)
{
    const Person person;
    const auto paneHeight = [&] {
        const std::string layout = person.FileOf("config", "ui_config/wxAuiManagerState.ini");
        const std::string name = "dock_size(3,0,0)=";
        const std::size_t place = layout.find(name);
        return place == std::string::npos ? 0 : std::stoi(layout.substr(place + name.size()));
    };
    {
        SampleInUse notes("config", "Notes", person);
        notes.Close();
    }
    const int before = paneHeight();
    ASSERT_GT(before, 0);
    // Try again in another run: on a busy machine the window may not be ready for the drag.
    for (int i = 0; i < 15 && paneHeight() == before; ++i) {
        SampleInUse notes("config", "Notes", person);
        std::istringstream geometry(notes.Geometry());
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        geometry >> x >> y >> width >> height;
        const ScreenPoint sash{x + width / 2, y + height - before - 2};
        notes.Drag(sash, {sash.x, sash.y - 60});
        notes.Close();
    }
    EXPECT_EQ(paneHeight(), before + 60);
    SampleInUse notes("config", "Notes", person);
    notes.Close();
    EXPECT_EQ(paneHeight(), before + 60);
}

TEST(ConfigSample, StartsWithANumberThatIsNone)
{
    const Person person;
    fs::create_directories(person.PathOf("config", "ui_config"));
    WriteFile(person.PathOf("config", "ui_config/notes.ini"), "[Notes]\nCopies=many\n");
    SampleInUse notes("config", "Notes", person);
    notes.Close();
    EXPECT_EQ(person.FileOf("config", "ui_config/notes.ini").substr(0, 18), "[Notes]\nCopies=1\nT");
}

TEST(PersistenceSample, ComesBackAsItWasLeft)
{
    const Person person;
    std::string geometry;
    {
        SampleInUse planets("persistence", "Planets", person);
        planets.Resize(640, 420);
        planets.Move(210, 160);
        EXPECT_TRUE(Becomes([&] { return planets.Geometry().find(" 640 420") != std::string::npos; }));
        geometry = planets.Geometry();
        std::istringstream numbers(geometry);
        int x = 0;
        int y = 0;
        numbers >> x >> y;
        SampleInUse::PointAt({x + 45, y + 13});
        SampleInUse::Click();
        for (const char* const key : {"Right", "Down", "Right"})
            planets.Press(key);
        SampleInUse::Drag({x + 202, y + 300}, {x + 262, y + 300});
        SampleInUse::PointAt({x + 355, y + 16});
        SampleInUse::Click();
        planets.Close();
    }
    const std::string left = person.FileOf("persistence", "settings.ini");
    EXPECT_NE(left.find("[Persistent_Options/Tree/Planets/treeCtrl]\nItems=0+^:|1+*:Earth|\n"), std::string::npos)
        << left;
    EXPECT_NE(left.find("[Persistent_Options/Splitter/Planets/splitter]\nPosition=26"), std::string::npos) << left;
    EXPECT_NE(left.find("[Persistent_Options/Book/Planets/notebook]\nSelection=1\n"), std::string::npos) << left;
    EXPECT_NE(left.find("[Persistent_Options/List/Planets/listCtrl]\nWidths="), std::string::npos) << left;

    // The next run of the sample shows the restored state, and stores the same state again.
    SampleInUse planets("persistence", "Planets", person);
    EXPECT_TRUE(Becomes([&] { return planets.Geometry() == geometry; })) << planets.Geometry() << " not " << geometry;
    planets.Close();
    EXPECT_EQ(person.FileOf("persistence", "settings.ini"), left);
}

TEST(TreeSample, OpensAgainWhatWasOpen)
{
    const Person person;
    const std::string home = person.home.Path();
    fs::create_directories(person.home / "alpha/inner");
    fs::create_directories(person.home / ".hidden");
    {
        SampleInUse folders("tree", "Folders", person);
        folders.Press("Right");
        folders.Press("Down");
        folders.WaitForTitle(home + "/.hidden");
        folders.Press("Down");
        folders.WaitForTitle(home + "/alpha");
        folders.Press("Right");
        folders.Press("Down");
        folders.WaitForTitle(home + "/alpha/inner");
        folders.Close();
    }
    EXPECT_NE(person.FileOf("tree", "settings.ini").find("[TreeControlState]\nFolders=" + home + "|alpha|"),
              std::string::npos)
        << person.FileOf("tree", "settings.ini");
    SampleInUse folders("tree", "Folders", person);
    for (int i = 0; i < 3; ++i)
        folders.Press("Down");
    folders.WaitForTitle(home + "/alpha/inner");
    folders.Close();
}

// Colours of the palette that appear nowhere else on the screen.
constexpr const char* kOrange = "#FF6820";
constexpr const char* kLime = "#32CD32";

// Opens the drop-down, and moves the pointer over a colour until the sheet shows the colour.
void PointAtColour(const SampleInUse& sheet, const char* colour)
{
    SampleInUse::Press(kF4);
    std::optional<ScreenPoint> cell;
    ASSERT_TRUE(Becomes([&] { return (cell = SampleInUse::Find(colour)).has_value(); })) << "no " << colour;
    const auto isShown = [&] { return sheet.ColourAt(490, 390) == colour; };
    bool shown = false;
    for (int i = 0; i < 15 && !shown; ++i) {
        SampleInUse::PointAt({cell->x + i % 2, cell->y});
        shown = Becomes(isShown, 3000);
    }
    ASSERT_TRUE(shown) << sheet.ColourAt(490, 390) << " not " << colour;
}

TEST(ColourSample, ShowsTheColourPointedAtAndKeepsTheOneClicked)
{
    const Person person;
    SampleInUse sheet("colour", "Sheet", person);
    sheet.Resize(500, 400);
    EXPECT_TRUE(Becomes([&] { return sheet.ColourAt(490, 390) == "#FFFFFF"; }));
    PointAtColour(sheet, kOrange);
    EXPECT_EQ(sheet.Title(), "Sheet");
    SampleInUse::Click();
    sheet.WaitForTitle("Sheet in #FF6820");
    EXPECT_EQ(sheet.ColourAt(490, 390), kOrange);

    PointAtColour(sheet, kLime);
    SampleInUse::Press("Escape");
    EXPECT_TRUE(Becomes([&] { return sheet.ColourAt(490, 390) == kOrange; })) << sheet.ColourAt(490, 390);
    sheet.Close();
}

// Types a text into the focused field, presses Return, and waits for the title.
void EnterAndWait(const SampleInUse& sample, const std::string& text, const std::string& title)
{
    SampleInUse::Type(text);
    SampleInUse::Press("Return");
    sample.WaitForTitle(title);
}

TEST(NumeditSample, TakesOnlyAnAmountAndShowsItInGroups)
{
    const Person person;
    SampleInUse payments("numedit", "Payments", person);
    EnterAndWait(payments, "12x34.56.7", "Paid 1,234.56 EUR");
    EnterAndWait(payments, "-5", "Paid 5.00 EUR");
    EnterAndWait(payments, "0", "Not paid: at least 0.01");
    EnterAndWait(payments, ".5", "Paid 0.50 EUR");
    payments.Close();
}

TEST(OrderSample, SendsOnlyWhatTheFieldsAccept)
{
    const Person person;
    SampleInUse order("order", "Order", person);
    for (const char* const key : {"ctrl+a", "Delete", "alt+s"})
        order.Press(key);
    order.WaitForTitle("Not ordered");
    order.Type("3");
    for (const char* const key : {"Tab", "ctrl+a"})
        order.Press(key);
    order.Type("7.5");
    order.Press("alt+s");
    order.WaitForTitle("Ordered 3 for 22.50");
    order.Close();
}

// Repeats the key press, because a dialog that reads folders in the background loses a key press that is too early.
void PressUntil(const std::string& key, const std::function<bool()>& isDone)
{
    bool done = false;
    for (int i = 0; i < 15 && !done; ++i) {
        SampleInUse::Press(key);
        done = Becomes(isDone, 3000);
    }
    EXPECT_TRUE(done) << key << " does nothing";
}

TEST(DialogsSample, ListsTheFolderAndSavesInTheFileChosenLast)
{
    const Person person;
    const std::string music = person.home / "music";
    fs::create_directories(music);
    WriteFile(music + "/fugue.flac", "");
    WriteFile(music + "/air.flac", "");
    fs::create_directories(person.PathOf("dialogs", ""));
    WriteFile(person.PathOf("dialogs", "settings.ini"),
              "[ListedFolder]\nPath=" + music + "\n[LastFiles]\nSavedList=" + person.home.Path() + "/music.txt\n");
    SampleInUse list("dialogs", "File list", person);
    list.Press("ctrl+o");
    PressUntil("Return", [&] { return list.Title() == "2 files in " + music; });
    list.Press("ctrl+s");
    PressUntil("Return", [&] { return list.Title() == "Saved in " + (person.home / "music.txt"); });
    EXPECT_EQ(ReadFile(person.home / "music.txt"), music + "/air.flac\n" + music + "/fugue.flac");
    list.Close();
}

TEST(RememberingSample, OpensAndSavesWhereItDidLast)
{
    const Person person;
    WriteFile(person.home / "fugue.txt", "a subject, and its answer");
    fs::create_directories(person.PathOf("remembering", ""));
    const std::string settings =
        "[LastFiles]\nOpenedText=" + (person.home / "fugue.txt") + "\nSavedText=" + (person.home / "copy.txt") + "\n";
    WriteFile(person.PathOf("remembering", "settings.ini"), settings);
    SampleInUse texts("remembering", "Texts", person);
    texts.Press("ctrl+o");
    PressUntil("alt+o", [&] { return texts.Title() == "1 opened, " + (person.home / "fugue.txt") + " shown"; });
    texts.Press("ctrl+s");
    PressUntil("Return", [&] { return texts.Title() == "Saved in " + (person.home / "copy.txt"); });
    EXPECT_EQ(ReadFile(person.home / "copy.txt"), "a subject, and its answer");
    EXPECT_EQ(person.FileOf("remembering", "settings.ini"),
              settings + "\n[LastFilters]\nOpenedText=*.txt\nSavedText=*.txt\n");
    texts.Close();
}

TEST(HistorySample, ListsTheTextsThatWereOpenedLast)
{
    const Person person;
    const std::string air = person.home / "air.txt";
    const std::string fugue = person.home / "fugue.txt";
    WriteFile(air, "a melody");
    WriteFile(fugue, "a subject, and its answer");
    fs::create_directories(person.PathOf("history", ""));
    WriteFile(person.PathOf("history", "settings.ini"),
              "[LastFiles]\nText=" + fugue + "\n\n[RecentTexts]\nfile1=" + air + "\n");
    {
        SampleInUse texts("history", "Recent texts", person);
        texts.Press("ctrl+o");
        PressUntil("alt+o", [&] { return texts.Title() == fugue; });
        texts.Close();
    }
    // The toolkit writes nine entries; those without a file are empty.
    const auto isList = [&](const std::string& first, const std::string& second) {
        const std::string list = "[RecentTexts]\nfile1=" + first + "\nfile2=" + second + "\nfile3=\n";
        return person.FileOf("history", "settings.ini").find(list) != std::string::npos;
    };
    EXPECT_TRUE(isList(fugue, air)) << person.FileOf("history", "settings.ini");
    SampleInUse texts("history", "Recent texts", person);
    texts.Press("alt+f");
    PressUntil("2", [&] { return texts.Title() == air; });
    texts.Close();
    EXPECT_TRUE(isList(air, fugue)) << person.FileOf("history", "settings.ini");
}

TEST(ThreadSample, CountsOnWhileItsWindowAnswers)
{
    const Person person;
    SampleInUse primes("thread", "[0-9]+ primes, [0-9]+ % done", person);
    primes.WaitForTitle("78498 primes, 100 % done");
    primes.Close();
}

TEST(ThreadSample, CanBeClosedAtAnyTime)
{
    const Person person;
    SampleInUse primes("thread", "(Counting|[0-9]+ primes, [0-9]+ % done)", person);
    primes.Close();
}

TEST(RestartSample, StopsARunAndStartsAnother)
{
    const Person person;
    SampleInUse sums("restart", "Sum", person);
    sums.Type("1000");
    sums.WaitForTitle("The sum is 500500");
    sums.Type("000000000000");
    sums.WaitForTitle("Adding up");
    sums.Press("ctrl+a");
    sums.Type("4");
    sums.WaitForTitle("The sum is 10");
    sums.Close();
}

TEST(RestartSample, CanBeClosedWhileItAddsUp)
{
    const Person person;
    SampleInUse sums("restart", "Sum", person);
    sums.Type("1000000000000000");
    sums.WaitForTitle("Adding up");
    sums.Close();
}

TEST(PlatformSample, RemembersWhatWasSearchedFor)
{
    const Person person;
    {
        SampleInUse search("platform", "Search", person);
        search.Type("a needle");
        for (const char* const key : {"alt+w", "shift+Tab", "Return"})
            search.Press(key);
        search.WaitForTitle("Searching for a needle");
        search.Close();
    }
    EXPECT_EQ(person.FileOf("platform", "settings.ini"), "[Search]\nLastText=a needle\nWholeWords=true\n");
    SampleInUse search("platform", "Search", person);
    search.Press("Return");
    search.WaitForTitle("Searching for a needle");
    search.Close();
}

TEST(PlatformSample, SaysThatNothingCanBeStored)
{
    const Person person;
    WriteFile(person.data / "sample-platform", "in the place of the folder");
    SampleInUse search("platform", "Search", person);
    EnterAndWait(search, "a needle", "Cannot be stored in " + (person.data / "sample-platform"));
    search.Close();
}

TEST(XrcSample, GivesAPlanetTheColourThatIsChosenAndOpensTheTreeAgain)
{
    const Person person;
    {
        SampleInUse planets("xrc", "Planets", person);
        for (const char* const key : {"Right", "Down", "alt+c", kF4})
            planets.Press(key);
        EXPECT_TRUE(Becomes([] { return SampleInUse::Find(kOrange).has_value(); }));
        for (const char* const key : {"Up", "Down", "Right", "Return"})
            planets.Press(key);
        planets.WaitForTitle("Earth in #A52A00");
        planets.Close();
    }
    EXPECT_EQ(person.FileOf("xrc", "settings.ini"), "[TreeControlState]\nPlanets=Sun|\n");
    SampleInUse planets("xrc", "Planets", person);
    planets.Close();
    EXPECT_EQ(person.FileOf("xrc", "settings.ini"), "[TreeControlState]\nPlanets=Sun|\n");
}

}  // namespace
