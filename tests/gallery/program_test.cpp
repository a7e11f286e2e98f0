// The program, started as a shell starts it.

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>

#include <tests/support/becomes.h>
#include <tests/support/locale/scoped_locale.h>
#include <tests/support/process/child_process.h>
#include <tests/support/temp_folder.h>

namespace {

namespace fs = std::filesystem;

std::vector<std::string> CommandOf(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), GALLERY);
    return arguments;
}

// One run of the gallery.
class Program
{
public:
    explicit Program(const std::vector<std::string>& arguments)
        : m_child(CommandOf(arguments), {{"TMPDIR", m_temporary.Path()}}, m_folder / "errors")
    {
    }

    // Sends a signal to the program, and returns the result of Wait().
    int EndBy(int signal)
    {
        m_child.Send(signal);
        return Wait();
    }

    // Waits for the end and returns the exit code; negative when a signal ended the program or the deadline has
    // passed.
    int Wait()
    {
        if (m_child.WaitForEnd(1200'000))
            return m_child.ExitCode();
        ADD_FAILURE() << "still running";
        return -1;
    }

    std::string Output() const { return m_child.Output(); }
    std::string Errors() const { return ReadFile(m_folder / "errors"); }
    bool HasTemporaryFiles() const { return !fs::is_empty(m_temporary.Path()); }

private:
    TempFolder m_folder;
    TempFolder m_temporary;
    ChildProcess m_child;
};

bool WaitFor(const std::string& command)
{
    return Becomes([&] { return std::system((command + " >/dev/null 2>&1").c_str()) == 0; });
}

bool ShowsWindow(const std::string& title)
{
    return WaitFor("xdotool search --onlyvisible --name '" + title + "'");
}

// Gives each test a data folder of its own, without settings of an earlier test.
class TheProgram : public testing::Test
{
protected:
    TheProgram() { setenv("XDG_DATA_HOME", data.Path().c_str(), 1); }

    TempFolder data;
};
class TheTour : public TheProgram
{
};

TEST_F(TheProgram, SaysHowItIsUsed)
{
    Program program({"--help"});
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_EQ(program.Output().substr(0, 24), "Usage: fittings-gallery ");
}

TEST_F(TheProgram, RefusesWhatItDoesNotKnow)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--nonsense"}, {"one", "two"}, {"--tour"}}) {
        Program program(arguments);
        EXPECT_EQ(program.Wait(), 2);
        EXPECT_EQ(program.Errors().substr(0, 24), "Usage: fittings-gallery ");
    }
}

TEST_F(TheProgram, SavesItsStateWhenItIsTerminated)
{
    TempFolder folder;
    const std::string root = fs::canonical(folder.Path()).native();
    Program program({folder.Path()});
    ASSERT_TRUE(ShowsWindow(root + ".*Fittings Gallery"));
    EXPECT_EQ(program.EndBy(SIGTERM), 0);
    EXPECT_NE(ReadFile(data / "fittings-gallery/ui_config/browser.ini").find("Roots=" + root + "|\n"),
              std::string::npos);
    EXPECT_NE(ReadFile(data / "fittings-gallery/settings.ini").find("[wxWindowState]"), std::string::npos);

    Program next({});
    EXPECT_TRUE(ShowsWindow(root + ".*Fittings Gallery"));
    EXPECT_EQ(next.EndBy(SIGINT), 0);
}

TEST_F(TheProgram, SavesItsStateWhenItIsTerminatedInADialog)
{
    const std::vector<std::pair<std::string, std::string>> dialogs{{"ctrl+o", "Open folder"},
                                                                   {"ctrl+s", "Save report"}};
    for (const auto& [key, title] : dialogs) {
        TempFolder folder;
        const std::string root = fs::canonical(folder.Path()).native();
        Program program({folder.Path()});
        ASSERT_TRUE(ShowsWindow(root + ".*Fittings Gallery"));
        ASSERT_TRUE(WaitFor("xdotool search --onlyvisible --name 'Fittings Gallery' windowactivate --sync"));
        ASSERT_TRUE(WaitFor("xdotool key " + key));
        ASSERT_TRUE(ShowsWindow("^" + title + "$"));
        EXPECT_EQ(program.EndBy(SIGTERM), 0);
        EXPECT_NE(ReadFile(data / "fittings-gallery/ui_config/browser.ini").find(root + "|"), std::string::npos);
    }
}

// With scale factor 2, a window of the usual size does not fit on the screen. The screen has 1280 x 1024 pixels, and
// the window manager reserves margins at the edges.
TEST_F(TheProgram, FitsOnTheScreenAtFirst)
{
    setenv("GDK_SCALE", "2", 1);
    Program program({"/"});
    unsetenv("GDK_SCALE");
    ASSERT_TRUE(ShowsWindow("Fittings Gallery"));
    EXPECT_EQ(program.EndBy(SIGTERM), 0);
    const std::string settings = ReadFile(data / "fittings-gallery/settings.ini");
    int width = 0;
    int height = 0;
    const std::size_t geometry = settings.find("[wxWindowState]\nBrowser=");
    ASSERT_NE(geometry, std::string::npos);
    ASSERT_EQ(std::sscanf(&settings[geometry], "[wxWindowState] Browser=%*d;%*d;%d;%d", &width, &height), 2);
    EXPECT_NEAR(width, 632, 1);
    EXPECT_NEAR(height, 480, 1);
}

// Returns only the program's own messages: newer versions of the image loader also report that they run without a
// sandbox.
std::string OwnLines(const std::string& errors)
{
    std::string own;
    for (const std::string& line : LinesOf(errors, "fittings-gallery: "))
        own += "fittings-gallery: " + line + "\n";
    return own;
}

TEST_F(TheProgram, SaysInOneLineWhatIsNoFolderAndStarts)
{
    Program program({"/no such folder"});
    ASSERT_TRUE(ShowsWindow("Fittings Gallery"));
    EXPECT_EQ(program.EndBy(SIGTERM), 0);
    EXPECT_EQ(OwnLines(program.Errors()), "fittings-gallery: /no such folder: No such file or directory\n")
        << program.Errors();
}

std::size_t CountColours(const std::string& path)
{
    const std::unique_ptr<GdkPixbuf, void (*)(void*)> picture(gdk_pixbuf_new_from_file(path.c_str(), nullptr),
                                                              g_object_unref);
    if (!picture)
        return 0;
    std::set<unsigned> colours;
    const guchar* pixels = gdk_pixbuf_read_pixels(picture.get());
    for (int y = 0; y < gdk_pixbuf_get_height(picture.get()); ++y) {
        const guchar* pixel = pixels + y * gdk_pixbuf_get_rowstride(picture.get());
        for (int x = 0; x < gdk_pixbuf_get_width(picture.get()); ++x, pixel += gdk_pixbuf_get_n_channels(picture.get()))
            colours.insert(pixel[0] * 65536u + pixel[1] * 256u + pixel[2]);
    }
    return colours.size();
}

// Runs the gallery with --tour, and expects all pictures. The tour shows the folder in @a shown. If @a shown is empty,
// the tour makes a folder and shows that.
void TakesItsPictures(const std::vector<std::string>& shown = {})
{
    TempFolder folder;
    std::vector<std::string> arguments{"--tour", folder / "pictures"};
    arguments.insert(arguments.end(), shown.begin(), shown.end());
    Program program(arguments);
    EXPECT_EQ(program.Wait(), 0) << program.Output() << program.Errors();
    EXPECT_EQ(program.Output().find("FAILED"), std::string::npos);
    EXPECT_FALSE(program.HasTemporaryFiles());
    // GTK prints this warning if a control has less room than its borders take.
    EXPECT_EQ(program.Errors().find("while allocating gadget"), std::string::npos) << program.Errors();
    for (const char* name : {"browser", "colour-popup", "colours", "filter", "folder-colours", "folder-dialog",
                             "numbers", "persistence", "save-dialog", "tree", "window-state"})
        EXPECT_GT(CountColours(folder / ("pictures/" + std::string(name) + ".png")), 100u) << name;
}

TEST_F(TheTour, ShowsEachComponentOnAFolderOfItsOwn)
{
    TakesItsPictures();
    EXPECT_FALSE(fs::exists(data / "fittings-gallery")) << "the tour touched the user's settings";
}

void TakesItsPicturesIn(const char* locale)
{
    const ScopedLocale scoped(locale);
    setenv("LC_ALL", locale, 1);
    TakesItsPictures();
    setenv("LC_ALL", "C.UTF-8", 1);
}

TEST_F(TheTour, GoesFromRightToLeftAsTheLanguageDoes)
{
    TakesItsPicturesIn("he_IL.UTF-8");
}

TEST_F(TheTour, TypesTheDecimalPointOfTheLocale)
{
    TakesItsPicturesIn("de_DE.UTF-8");
}

TEST_F(TheTour, ShowsAFolderThatItIsGiven)
{
    TakesItsPictures({"/usr"});
}

TEST_F(TheTour, ShowsAnEmptyFolderToo)
{
    TempFolder empty;
    TakesItsPictures({empty.Path()});
}

TEST_F(TheTour, ShowsAFolderWhoseFilesAreOutOfSight)
{
    TempFolder large;
    for (int i = 0; i < 50; ++i)
        fs::create_directories(large / ("a/folder " + std::to_string(i)));
    WriteFile(large / "a/file", "x");
    TakesItsPictures({large.Path()});
}

TEST_F(TheTour, FailsWhereItCannotWrite)
{
    Program program({"--tour", "/proc/pictures"});
    EXPECT_EQ(program.Wait(), 1);
}

}  // namespace
