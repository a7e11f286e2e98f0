// The store is used while the process ends.

#include <cstdlib>

#include <sys/types.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <tests/support/process/forked_work.h>
#include <tests/support/temp_folder.h>

namespace {

// An object that is constructed before the store is first used. Therefore it is destroyed after the objects that the
// store constructs at its first use.
struct Host
{
    ~Host()
    {
        if (storesAtItsEnd)
            CLocalRegStore::WriteString(L"s", L"copy", Stored(L"s", L"k").c_str());
    }

    bool storesAtItsEnd = false;
};

Host g_host;

TEST(AnObjectThatOutlivesMain, CanReadAndStore)
{
    TempUserData data;
    EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"v"));
    EXPECT_EQ(Stored(L"s", L"k"), L"v");
    const pid_t child = fork();
    if (child == 0) {
        g_host.storesAtItsEnd = true;
        std::exit(0);
    }
    EXPECT_TRUE(WaitForSuccess(child));
    EXPECT_EQ(ReadFile(data / "settings.ini"), "[s]\nk=v\ncopy=v\n");
}

}  // namespace
