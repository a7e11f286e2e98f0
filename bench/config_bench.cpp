// Compares wxStoreConfig on a named file with wxFileConfig on a file with the same entries.

#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <wx/fileconf.h>

#include <fittings/config/store_config.h>
#include <tests/support/temp_user_data.h>

namespace {

constexpr int kGroups = 20;

// A temporary folder with one file for wxStoreConfig and one for wxFileConfig, which contain the same entries.
class Entries : public TempUserData
{
public:
    explicit Entries(int count)
    {
        for (int entry = 0; entry < count; ++entry)
            m_paths.push_back(wxString::Format("/Group%d/WindowGeometry%d", entry / (count / kGroups), entry));
        for (wxConfigBase* const config : {Ours().release(), Peers().release()}) {
            WriteAll(*config, 0);
            delete config;
        }
    }

    static std::unique_ptr<wxConfigBase> Ours() { return std::make_unique<wxStoreConfig>("bench.ini"); }

    std::unique_ptr<wxConfigBase> Peers() const
    {
        return std::make_unique<wxFileConfig>("", "", *this / "peer.ini", "", wxCONFIG_USE_LOCAL_FILE);
    }

    void WriteAll(wxConfigBase& config, long value) const
    {
        for (const wxString& path : m_paths)
            config.Write(path, value);
    }

    bool HasAll(const wxConfigBase& config) const
    {
        long value = 0;
        for (const wxString& path : m_paths)
            if (!config.Read(path, &value))
                return false;
        return true;
    }

    const wxString& SomePath() const { return m_paths[m_paths.size() / 2]; }

private:
    std::vector<wxString> m_paths;
};

using Open = std::unique_ptr<wxConfigBase> (*)(const Entries&);

std::unique_ptr<wxConfigBase> OpenOurs(const Entries&)
{
    return Entries::Ours();
}

std::unique_ptr<wxConfigBase> OpenPeers(const Entries& entries)
{
    return entries.Peers();
}

void Expect(benchmark::State& state, bool holds)
{
    if (!holds)
        state.SkipWithError("a wrong result");
}

// Measures opening the file and looking up one entry.
void Load(benchmark::State& state, Open open, int count)
{
    const Entries entries(count);
    for (auto _ : state)
        Expect(state, open(entries)->HasEntry(entries.SomePath()));
}

// Measures reading all entries. The file is loaded before that: wxStoreConfig loads it at the first look-up, and
// wxFileConfig when it is opened.
void Read(benchmark::State& state, Open open, int count)
{
    const Entries entries(count);
    const auto config = open(entries);
    Expect(state, config->HasEntry(entries.SomePath()));
    for (auto _ : state)
        Expect(state, entries.HasAll(*config));
}

void Write(benchmark::State& state, Open open, int count)
{
    const Entries entries(count);
    const auto config = open(entries);
    long value = 0;
    entries.WriteAll(*config, ++value);
    for (auto _ : state)
        entries.WriteAll(*config, ++value);
    config->Flush();
}

// Measures saving after all entries have changed. budgets.h sets no limit for the ratio to wxFileConfig, because
// wxFileConfig does less: it neither reads the changes of other programs nor waits for the disk.
void Flush(benchmark::State& state, Open open, int count)
{
    const Entries entries(count);
    const auto config = open(entries);
    long value = 0;
    for (auto _ : state) {
        state.PauseTiming();
        entries.WriteAll(*config, ++value);
        state.ResumeTiming();
        Expect(state, config->Flush());
    }
}

// Measures everything that a program does with its settings in one run.
void All(benchmark::State& state, Open open, int count)
{
    const Entries entries(count);
    long value = 0;
    for (auto _ : state) {
        const auto config = open(entries);
        Expect(state, entries.HasAll(*config));
        entries.WriteAll(*config, ++value);
        Expect(state, config->Flush());
    }
}

void Register(const std::string& name, void (*run)(benchmark::State&, Open, int), int count)
{
    benchmark::RegisterBenchmark(name.c_str(), run, OpenOurs, count)->UseRealTime();
    benchmark::RegisterBenchmark((name + "/peer").c_str(), run, OpenPeers, count)->UseRealTime();
}

[[maybe_unused]] const bool kIsRegistered = [] {
    for (const auto& [size, count] : {std::pair("1k", 1000), std::pair("100k", 100'000)}) {
        const std::string prefix = std::string("config/") + size + "-";
        Register(prefix + "load", Load, count);
        Register(prefix + "read", Read, count);
        Register(prefix + "write", Write, count);
        Register(prefix + "flush", Flush, count);
        Register(prefix + "all", All, count);
    }
    return true;
}();

}  // namespace
