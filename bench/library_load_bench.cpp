// Loading the library, compared with loading an empty library of the same size, each time in a new process.

#include <benchmark/benchmark.h>

#include <glib.h>

namespace {

void Load(benchmark::State& state, const char* library)
{
    const char* command[] = {BENCH_LIBRARY_LOAD, library, nullptr};
    for (auto _ : state) {
        char* nanoseconds = nullptr;
        int status = 0;
        const bool ran = g_spawn_sync(nullptr, const_cast<char**>(command), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr,
                                      &nanoseconds, nullptr, &status, nullptr);
        const double time = ran && status == 0 ? g_ascii_strtod(nanoseconds, nullptr) : 0;
        g_free(nanoseconds);
        if (time <= 0) {
            state.SkipWithError("the library could not be loaded");
            break;
        }
        state.SetIterationTime(time / 1e9);
    }
}

void LoadLibrary(benchmark::State& state)
{
    Load(state, BENCH_LIBRARY);
}
BENCHMARK(LoadLibrary)->Name("library/load")->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(10);

void LoadPeer(benchmark::State& state)
{
    Load(state, BENCH_LIBRARY_PEER);
}
BENCHMARK(LoadPeer)->Name("library/load/peer")->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(10);

}  // namespace
