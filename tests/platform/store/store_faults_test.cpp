// In each run, one of the calls by which the store uses files fails with one of several errors. In some runs, all later
// calls fail, too. Afterwards the file must contain the old or the new value, and all other values. If the function
// returns a result, the result must say which value it is. When the calls succeed again, the store must save again.

#include <cerrno>
#include <functional>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/platform/local_reg_store.h>

#include <tests/platform/store/failing_calls.h>
#include <tests/platform/store/store_support.h>
#include <tests/support/temp_folder.h>

namespace {

constexpr int kErrors[] = {ENOSPC, EIO, EACCES, EROFS, ENOMEM, EMFILE, EINTR};

// For each error, runs @a attempt again and again. In the first run, the first call on a file fails. In the second
// run, the second call fails, and so on, until no call fails in a run. Records the number of faults and the names of
// the failed calls.
void ForEveryFault(const std::function<void(const Fault&)>& attempt)
{
    const InMemory fast;
    int faults = 0;
    std::set<std::string> calls;
    for (const int error : kErrors)
        for (const bool lasts : {false, true}) {
            if (lasts && error == EINTR)
                continue;  // a call that is always interrupted is repeated endlessly
            for (int nth = 1;; ++nth) {
                attempt({nth, error, lasts});
                const std::string& failed = FailingCalls::Failed();
                ASSERT_FALSE(testing::Test::HasFailure()) << "call " << nth << ", " << failed << ", with error "
                                                          << error << (lasts ? " and all later ones" : "");
                if (failed.empty())
                    break;
                calls.insert(failed);
                ++faults;
            }
        }
    EXPECT_GT(faults, 0);
    std::string names;
    for (const std::string& call : calls)
        names += call + " ";
    testing::Test::RecordProperty("faults", faults);
    testing::Test::RecordProperty("calls", names);
}

const std::string kOthers = "# mine\n[other]\na=1\n\nb=2\n[s]\nc=3\n";

bool Under(const Fault& fault, const std::function<bool()>& work)
{
    const FailingCalls failing(fault);
    return work();
}

// Expects the folder to contain only the file, its lock file, and at most one temporary file that could not be removed.
// A later save removes the temporary file.
void ExpectNoStrangers(const TempFolder& folder, const std::string& file)
{
    int leftovers = 0;
    for (const std::string& name : NamesIn(folder.Path()))
        if (name.rfind(".fittings-save-", 0) == 0)
            ++leftovers;
        else
            EXPECT_TRUE(name == file || name == file + ".lock") << name;
    EXPECT_LE(leftovers, 1);
}

TEST(AnyFailingCall, LeavesTheOldOrTheNewValueInTheDefaultStore)
{
    ForEveryFault([](const Fault& fault) {
        const TempUserData data;
        WriteFile(data / "settings.ini", kOthers + "k=old\n");
        const bool stored = Under(fault, [&] { return CLocalRegStore::WriteString(L"s", L"k", L"new"); });
        EXPECT_EQ(ReadFile(data / "settings.ini"), kOthers + (stored ? "k=new\n" : "k=old\n"));
        EXPECT_EQ(Stored(L"s", L"k"), stored ? L"new" : L"old");
        ExpectNoStrangers(data, "settings.ini");
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"next"));
        EXPECT_EQ(ReadFile(data / "settings.ini"), kOthers + "k=next\n");
    });
}

TEST(AnyFailingCall, LeavesTheDeletedKeyOrNot)
{
    ForEveryFault([](const Fault& fault) {
        const TempUserData data;
        WriteFile(data / "settings.ini", kOthers + "k=old\n");
        const bool stored = Under(fault, [&] { return CLocalRegStore::DeleteProfile(L"s", L"k"); });
        EXPECT_EQ(ReadFile(data / "settings.ini"), kOthers + (stored ? "" : "k=old\n"));
        EXPECT_TRUE(CLocalRegStore::DeleteProfile(L"s", L"k"));
        EXPECT_EQ(ReadFile(data / "settings.ini"), kOthers);
    });
}

TEST(AnyFailingCall, LeavesTheFirstValueOrNone)
{
    ForEveryFault([](const Fault& fault) {
        const TempUserData data;
        const std::string file = data / "settings.ini";
        const bool stored = Under(fault, [&] { return CLocalRegStore::WriteString(L"s", L"k", L"new"); });
        EXPECT_EQ(ReadFile(file), stored ? "[s]\nk=new\n" : "");
        EXPECT_EQ(Stored(L"s", L"k"), stored ? L"new" : L"(none)");
        ExpectNoStrangers(data, "settings.ini");
        EXPECT_TRUE(CLocalRegStore::WriteString(L"s", L"k", L"next"));
        EXPECT_EQ(ReadFile(file), "[s]\nk=next\n");
    });
}

TEST(AnyFailingCall, LetsAReadGiveTheValueOrTheDefault)
{
    ForEveryFault([](const Fault& fault) {
        const TempUserData data;
        WriteFile(data / "settings.ini", kOthers + "k=old\n");
        {
            const FailingCalls failing(fault);
            const std::wstring value = Stored(L"s", L"k");
            EXPECT_TRUE(value == L"old" || value == L"(none)");
        }
        EXPECT_EQ(Stored(L"s", L"k"), L"old");
        EXPECT_EQ(Stored(L"s", L"c"), L"3");
    });
}

TEST(AnyFailingCall, LeavesTheOldOrTheNewValueInANamedFile)
{
    ForEveryFault([](const Fault& fault) {
        const TempUserData data;
        ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"old");
        const std::string file = data / "ui_config/a.ini";
        WriteFile(file, kOthers + "k=old\n");
        {
            const FailingCalls failing(fault);
            ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"new");
        }
        const std::string now = ReadFile(file);
        EXPECT_TRUE(now == kOthers + "k=old\n" || now == kOthers + "k=new\n") << now;
        ui_config_mgr::WriteConfigString(L"a.ini", L"s", L"k", L"next");
        EXPECT_EQ(ReadFile(file), kOthers + "k=next\n");
    });
}

TEST(AnyFailingCall, LetsAFileBeSavedOrSaysThatItWasNot)
{
    ForEveryFault([](const Fault& fault) {
        const TempFolder folder;
        const std::string file = folder / "a.ini";
        WriteFile(file, kOthers + "k=old\n");
        Ini ini(file);
        ini.Set(L"s", L"k", L"new");
        const bool saved = Under(fault, [&] { return ini.Save(file); });
        EXPECT_EQ(ReadFile(file), kOthers + (saved ? "k=new\n" : "k=old\n"));
        ExpectNoStrangers(folder, "a.ini");
        EXPECT_TRUE(ini.Save(file));
        EXPECT_EQ(ReadFile(file), kOthers + "k=new\n");
    });
}

// If the write fails, the earlier bytes stay in the file. If it succeeds, they are in settings.ini.unreadable.
TEST(AnyFailingCall, KeepsAFileThatHoldsNoText)
{
    const std::string garbage(100, '\0');
    ForEveryFault([&](const Fault& fault) {
        const TempUserData data;
        WriteFile(data / "settings.ini", garbage);
        const bool stored = Under(fault, [&] { return CLocalRegStore::WriteString(L"s", L"k", L"new"); });
        EXPECT_EQ(ReadFile(data / "settings.ini"), stored ? "[s]\nk=new\n" : garbage);
        if (stored) {
            EXPECT_EQ(ReadFile(data / "settings.ini.unreadable"), garbage);
        }
    });
}

}  // namespace
