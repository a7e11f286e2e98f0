// The paths when the application changes its name, and when several threads use the paths.

#include <fittings/platform/std_file_paths.h>

#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <wx/app.h>

namespace {

// While an object of this class exists, the process has an application object.
class App
{
public:
    App() : m_before(wxAppConsole::GetInstance()) { wxAppConsole::SetInstance(&m_app); }
    ~App() { wxAppConsole::SetInstance(m_before); }
    App(const App&) = delete;
    App& operator=(const App&) = delete;

    wxAppConsole* operator->() { return &m_app; }

private:
    wxAppConsole* m_before;
    wxAppConsole m_app;
};

std::wstring LastPart(const std::wstring& path)
{
    return path.substr(path.rfind(L'/') + 1);
}

TEST(PathsOfAnApp, FollowItsName)
{
    EXPECT_EQ(LastPart(std_file_paths::GetUserDataDir()), L"platform-paths-test");
    {
        App app;
        app->SetAppName("one");
        EXPECT_EQ(LastPart(std_file_paths::GetUserDataDir()), L"one");
        EXPECT_EQ(LastPart(std_file_paths::GetUserDataDir()), L"one");
        EXPECT_EQ(LastPart(std_file_paths::GetAppFolderPath(nullptr)), L"one");
        app->SetAppName("two");
        EXPECT_EQ(LastPart(std_file_paths::GetUserDataDir()), L"two");
        EXPECT_EQ(LastPart(std_file_paths::GetAppFolderPath(nullptr)), L"two");
    }
    EXPECT_EQ(LastPart(std_file_paths::GetUserDataDir()), L"platform-paths-test");
}

// Characters that are not Unicode are replaced, so that the name can be part of a path.
TEST(PathsOfAnApp, AreUnicodeWhateverItsName)
{
    App app;
    app->SetAppName(wxString(std::wstring{L'a', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000), L'z'}));
    EXPECT_EQ(LastPart(std_file_paths::GetUserDataDir()), L"a\xFFFD\xFFFDz");
}

TEST(UserDataDirUnderThreads, IsOneOfThoseSet)
{
    std::atomic<bool> stop{false};
    std::atomic<int> wrong{0};
    std::vector<std::thread> readers;
    std_file_paths::SetUserDataDir(L"/srv/aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa");
    for (int i = 0; i < 3; ++i) {
        readers.emplace_back([&] {
            while (!stop) {
                const std::wstring path = std_file_paths::GetUserDataDir();
                if (path != L"/srv/aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa" && path != L"/srv/b")
                    ++wrong;
            }
        });
    }
    for (int i = 0; i < 5000; ++i)
        std_file_paths::SetUserDataDir(i % 2 ? L"/srv/aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa" : L"/srv/b");
    stop = true;
    for (std::thread& reader : readers)
        reader.join();
    std_file_paths::SetUserDataDir(L"");
    EXPECT_EQ(wrong, 0);
}

}  // namespace
