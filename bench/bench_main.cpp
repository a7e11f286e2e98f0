// Runs every benchmark beside its peer, in turns, and prints one table of the ratios of their medians.
//
//     fittings-bench [--json=FILE] [--benchmark_filter=REGEX] [other Google Benchmark flags]

#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>

#include <bench/budgets.h>

namespace {

/// Keeps the median of each benchmark, in nanoseconds.
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
                m_ns[run.run_name.function_name] =
                    run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
        }
    }

    /// The median of @a name; 0 when it was not run.
    double Of(const std::string& name) const
    {
        const auto found = m_ns.find(name);
        return found == m_ns.end() ? 0 : found->second;
    }

private:
    std::map<std::string, double> m_ns;
};

const char* Verdict(double ratio, double most)
{
    return ratio <= most ? "met" : "OVER";
}

void PrintTable(const Medians& medians)
{
    std::printf("%-26s %14s %14s %8s %8s\n", "row", "ours ns", "peer ns", "ratio", "budget");
    for (const Budget& budget : kBudgets) {
        const double ours = medians.Of(budget.row);
        const double peer = medians.Of(std::string(budget.row) + "/peer");
        if (ours > 0 && peer > 0)
            std::printf("%-26s %14.0f %14.0f %8.3f %8.2f  %s  (%s)\n", budget.row, ours, peer, ours / peer, budget.most,
                        Verdict(ours / peer, budget.most), budget.peer);
    }
    for (const Extra& extra : kExtras) {
        const double ours = medians.Of(extra.row);
        const double peer = medians.Of(std::string(extra.row) + "/peer");
        if (ours > 0 && peer > 0)
            std::printf("%-26s %14.0f %14.0f %+7.0fus %6.0fus  %s  (%s)\n", extra.row, ours, peer, (ours - peer) / 1e3,
                        extra.mostNs / 1e3, Verdict(ours - peer, extra.mostNs), extra.peer);
    }
    for (const Growth& growth : kGrowths) {
        const double large = medians.Of(growth.large);
        const double small = medians.Of(growth.small);
        if (large > 0 && small > 0) {
            const double ratio = large / small / growth.items;
            std::printf("%-26s %14.0f %14.0f %8.3f %8.2f  %s  (per item, %s)\n", growth.large, large, small, ratio,
                        growth.most, Verdict(ratio, growth.most), growth.small);
        }
    }
}

void WriteJson(const Medians& medians, const std::string& path)
{
    std::ofstream file(path);
    file << "[";
    const char* separator = "\n";
    const auto write = [&](const char* row, const char* name) {
        const double ours = medians.Of(row);
        const double peer = medians.Of(std::string(row) + "/peer");
        if (ours <= 0 || peer <= 0)
            return;
        file << separator << "  {\"row\": \"" << row << "\", \"ours_ns\": " << ours << ", \"peer\": \"" << name
             << "\", \"peer_ns\": " << peer << ", \"ratio\": " << ours / peer << "}";
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
    // What the caller says comes later and wins.
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
