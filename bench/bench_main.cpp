// Compares the benchmarks of the library with their peers, which are benchmarks of comparable work without the library.
// Runs the repetitions of all benchmarks in random order, and prints a table of the medians and their ratios.
//
//     fittings-bench [--json=FILE] [--benchmark_filter=REGEX] [other Google Benchmark flags]

#include <climits>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <malloc.h>

#include <benchmark/benchmark.h>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>

#include <bench/budgets.h>

namespace {

// Collects the median of each benchmark in nanoseconds. A benchmark that measures its peer itself reports the peer's
// time in the counter "peer".
class Medians : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred)
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
            else if (run.aggregate_name == "median")
                Keep(run);
        }
    }

    // Returns the median of the benchmark @a name; 0 if there is none.
    double Of(const std::string& name) const
    {
        const auto found = m_ns.find(name);
        return found == m_ns.end() ? 0 : found->second;
    }

private:
    void Keep(const Run& run)
    {
        const std::string& name = run.run_name.function_name;
        m_ns[name] = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
        const auto peer = run.counters.find("peer");
        if (peer != run.counters.end())
            m_ns[name + "/peer"] = peer->second;
    }

    std::map<std::string, double> m_ns;
};

// Two medians to compare.
struct Pair
{
    bool IsMeasured() const { return ours > 0 && peer > 0; }
    double Ratio() const { return ours / peer; }

    double ours;
    double peer;
};

Pair BesidePeer(const Medians& medians, const char* row)
{
    return {medians.Of(row), medians.Of(std::string(row) + "/peer")};
}

const char* Verdict(double value, double most)
{
    return value <= most ? "met" : "OVER";
}

void PrintTable(const Medians& medians)
{
    std::printf("%-26s %14s %14s %8s %8s\n", "row", "ours ns", "peer ns", "ratio", "budget");
    for (const Budget& budget : kBudgets) {
        const Pair pair = BesidePeer(medians, budget.row);
        if (pair.IsMeasured())
            std::printf("%-26s %14.0f %14.0f %8.3f %8.2f  %s  (%s)\n", budget.row, pair.ours, pair.peer, pair.Ratio(),
                        budget.most, Verdict(pair.Ratio(), budget.most), budget.peer);
    }
    for (const Extra& extra : kExtras) {
        const Pair pair = BesidePeer(medians, extra.row);
        const double more = pair.ours - pair.peer;
        if (pair.IsMeasured())
            std::printf("%-26s %14.0f %14.0f %+7.0fus %6.0fus  %s  (%s)\n", extra.row, pair.ours, pair.peer, more / 1e3,
                        extra.mostNs / 1e3, Verdict(more, extra.mostNs), extra.peer);
    }
    for (const Growth& growth : kGrowths) {
        const Pair pair{medians.Of(growth.large), medians.Of(growth.small)};
        const double ratio = pair.Ratio() / growth.items;
        if (pair.IsMeasured())
            std::printf("%-26s %14.0f %14.0f %8.3f %8.2f  %s  (per item, %s)\n", growth.large, pair.ours, pair.peer,
                        ratio, growth.most, Verdict(ratio, growth.most), growth.small);
    }
}

void WriteJson(const Medians& medians, const std::string& path)
{
    std::ofstream file(path);
    file << "[";
    const char* separator = "\n";
    const auto write = [&](const char* row, const char* name) {
        const Pair pair = BesidePeer(medians, row);
        if (!pair.IsMeasured())
            return;
        file << separator << "  {\"row\": \"" << row << "\", \"ours_ns\": " << pair.ours << ", \"peer\": \"" << name
             << "\", \"peer_ns\": " << pair.peer << ", \"ratio\": " << pair.Ratio() << "}";
        separator = ",\n";
    };
    for (const Budget& budget : kBudgets)
        write(budget.row, budget.peer);
    for (const Extra& extra : kExtras)
        write(extra.row, extra.peer);
    file << "\n]\n";
}

class BenchApp : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("fittings-bench");
        SetExitOnFrameDelete(false);
        return true;
    }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        Medians medians;
        benchmark::RunSpecifiedBenchmarks(&medians);
        PrintTable(medians);
        if (!json.empty())
            WriteJson(medians, json);
        return 0;
    }

    std::string json;
};

}  // namespace

int main(int argc, char** argv)
{
    // Make malloc keep freed memory. By default it sometimes returns the memory to the system between two rounds, and
    // the next round takes longer: one benchmark took 9 ms instead of 6 ms.
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);

    // The caller's arguments come last, so they override these defaults.
    std::vector<char*> arguments{argv[0]};
    std::string defaults[] = {"--benchmark_repetitions=9", "--benchmark_enable_random_interleaving=true",
                              "--benchmark_report_aggregates_only=true", "--benchmark_min_time=0.05"};
    for (std::string& argument : defaults)
        arguments.push_back(argument.data());

    auto* app = new BenchApp;
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "--json=", 7) == 0)
            app->json = argv[i] + 7;
        else
            arguments.push_back(argv[i]);
    }
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    wxApp::SetInstance(app);
    int none = 1;
    return wxEntry(none, argv);
}
