// Compares the gallery's worker, which adds up the sizes in a folder, with the command du. Both run with a warm cache.

#include <benchmark/benchmark.h>

#include <glib.h>
#include <wx/event.h>

#include <gallery/folders/size_worker.h>

namespace {

constexpr const char* kFolder = "/usr";

void GallerySum(benchmark::State& state)
{
    for (auto _ : state) {
        wxEvtHandler handler;
        gallery::SizeWorker worker(&handler, wxEVT_BUTTON, 1, kFolder);
        worker.RunThread();
        worker.Wait();
        if (!worker.TakeNews().done)
            state.SkipWithError("not done");
    }
}
BENCHMARK(GallerySum)->Name("gallery/sum-usr")->Unit(benchmark::kMillisecond)->UseRealTime();

void GallerySumPeer(benchmark::State& state)
{
    const char* command[] = {"du", "-s", kFolder, nullptr};
    const auto flags =
        static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDOUT_TO_DEV_NULL | G_SPAWN_STDERR_TO_DEV_NULL);
    for (auto _ : state) {
        int status = 0;
        if (!g_spawn_sync(nullptr, const_cast<char**>(command), nullptr, flags, nullptr, nullptr, nullptr, nullptr,
                          &status, nullptr))
            state.SkipWithError("du could not be run");
    }
}
BENCHMARK(GallerySumPeer)->Name("gallery/sum-usr/peer")->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
