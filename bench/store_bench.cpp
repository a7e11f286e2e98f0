// The settings store, compared with GKeyFile and wxFileConfig.

#include <filesystem>
#include <string>

#include <benchmark/benchmark.h>

#include <glib.h>
#include <sys/stat.h>
#include <wx/fileconf.h>
#include <wx/wfstream.h>

#include <fittings/config/ui_config_mgr.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/local_reg_store.h>
#include <tests/support/temp_user_data.h>

namespace {

constexpr int kSections = 20;

// A temporary user data directory with two files of settings, the default one and a named one. Each has the given
// number of keys.
class Settings : public TempUserData
{
public:
    explicit Settings(int keys) : m_keys(keys)
    {
        std::filesystem::create_directory(*this / "ui_config");
        std::string text;
        for (int key = 0; key < keys; ++key) {
            if (key % (keys / kSections) == 0)
                text += "[" + Section(key) + "]\n";
            text += Key(key) + "=" + std::to_string(key) + ";" + std::to_string(key * 7) + ";640;480\n";
        }
        for (const std::string& path : {DefaultPath(), NamedPath()})
            g_file_set_contents(path.c_str(), text.data(), static_cast<gssize>(text.size()), nullptr);
    }

    std::string DefaultPath() const { return *this / "settings.ini"; }
    std::string NamedPath() const { return *this / "ui_config/named.ini"; }

    std::string Section(int key) const { return "Section" + std::to_string(key / (m_keys / kSections)); }
    std::string Key(int key) const { return "WindowGeometry" + std::to_string(key); }

private:
    int m_keys;
};

std::wstring Wide(const std::string& text)
{
    return file_util_ex::ConvertFromUTF8W(text);
}

GKeyFile* LoadKeyFile(benchmark::State& state, const std::string& path)
{
    GKeyFile* const keys = g_key_file_new();
    const auto flags = static_cast<GKeyFileFlags>(G_KEY_FILE_KEEP_COMMENTS | G_KEY_FILE_KEEP_TRANSLATIONS);
    if (!g_key_file_load_from_file(keys, path.c_str(), flags, nullptr))
        state.SkipWithError("no key file");
    return keys;
}

void Expect(benchmark::State& state, bool holds)
{
    if (!holds)
        state.SkipWithError("a wrong result");
}

void SaveKeyFile(benchmark::State& state, GKeyFile* keys, const std::string& path)
{
    const auto flags = static_cast<GFileSetContentsFlags>(G_FILE_SET_CONTENTS_CONSISTENT | G_FILE_SET_CONTENTS_DURABLE);
    gsize length = 0;
    gchar* const text = g_key_file_to_data(keys, &length, nullptr);
    Expect(state, g_file_set_contents_full(path.c_str(), text, static_cast<gssize>(length), flags, 0600, nullptr));
    g_free(text);
}

void GetWarm(benchmark::State& state)
{
    const Settings settings(1000);
    const std::wstring section = Wide(settings.Section(567));
    const std::wstring key = Wide(settings.Key(567));
    for (auto _ : state)
        Expect(state, CLocalRegStore::GetString(section.c_str(), key.c_str(), L"").size() == 16);
}

void GetWarmPeer(benchmark::State& state)
{
    const Settings settings(1000);
    wxFileInputStream stream(settings.DefaultPath());
    const wxFileConfig config(stream);
    const wxString path = "/" + settings.Section(567) + "/" + settings.Key(567);
    const std::string file = settings.DefaultPath();
    for (auto _ : state) {
        struct stat info;
        Expect(state, stat(file.c_str(), &info) == 0);
        Expect(state, config.Read(path, wxString()).length() == 16);
    }
}

void FileGet(benchmark::State& state)
{
    const Settings settings(1000);
    const std::wstring section = Wide(settings.Section(567));
    const std::wstring key = Wide(settings.Key(567));
    for (auto _ : state)
        Expect(state, ui_config_mgr::GetConfigString(L"named.ini", section.c_str(), key.c_str()).size() == 16);
}

void FileGetPeer(benchmark::State& state)
{
    const Settings settings(1000);
    const std::string path = settings.NamedPath();
    const std::string section = settings.Section(567);
    const std::string key = settings.Key(567);
    for (auto _ : state) {
        GKeyFile* const keys = LoadKeyFile(state, path);
        gchar* const value = g_key_file_get_value(keys, section.c_str(), key.c_str(), nullptr);
        Expect(state, value != nullptr);
        g_free(value);
        g_key_file_unref(keys);
    }
}

void FileSet(benchmark::State& state)
{
    const Settings settings(1000);
    const std::wstring section = Wide(settings.Section(567));
    const std::wstring key = Wide(settings.Key(567));
    int number = 0;
    for (auto _ : state)
        ui_config_mgr::WriteConfigInt(L"named.ini", section.c_str(), key.c_str(), ++number);
    Expect(state, ui_config_mgr::GetConfigInt(L"named.ini", section.c_str(), key.c_str()) == number);
}

void FileSetPeer(benchmark::State& state)
{
    const Settings settings(1000);
    const std::string path = settings.NamedPath();
    const std::string section = settings.Section(567);
    const std::string key = settings.Key(567);
    int number = 0;
    for (auto _ : state) {
        GKeyFile* const keys = LoadKeyFile(state, path);
        g_key_file_set_value(keys, section.c_str(), key.c_str(), std::to_string(++number).c_str());
        SaveKeyFile(state, keys, path);
        g_key_file_unref(keys);
    }
}

constexpr int kWindowValues = 22;

// Stores as many values as a window stores when it closes: its geometry, flags, columns and trees.
void CloseWindow(benchmark::State& state)
{
    const Settings settings(1000);
    int number = 0;
    for (auto _ : state) {
        ++number;
        CLocalRegStore::Batch batch;
        for (int value = 0; value < kWindowValues; ++value) {
            const std::wstring key = Wide(settings.Key(value));
            CLocalRegStore::WriteProfileInt(L"Section0", key.c_str(), number + value);
        }
        Expect(state, batch.Save());
    }
    Expect(state, CLocalRegStore::GetProfileInt(L"Section0", Wide(settings.Key(0)).c_str(), 0) == number);
}

void CloseWindowPeer(benchmark::State& state)
{
    const Settings settings(1000);
    const std::string path = settings.DefaultPath();
    int number = 0;
    for (auto _ : state) {
        ++number;
        GKeyFile* const keys = LoadKeyFile(state, path);
        for (int value = 0; value < kWindowValues; ++value) {
            g_key_file_set_value(keys, "Section0", settings.Key(value).c_str(), std::to_string(number + value).c_str());
        }
        SaveKeyFile(state, keys, path);
        g_key_file_unref(keys);
    }
}

void LoadGetSave(benchmark::State& state, int keys)
{
    const Settings settings(keys);
    const std::wstring path = Wide(settings.NamedPath());
    const std::wstring section = Wide(settings.Section(keys / 2));
    const std::wstring key = Wide(settings.Key(keys / 2));
    int number = 0;
    for (auto _ : state) {
        CIniFile* const ini = CLocalRegStore::CreateInitFile(false);
        Expect(state, CLocalRegStore::Load(*ini, path.c_str()));
        Expect(state, !CLocalRegStore::GetString(*ini, section.c_str(), key.c_str(), L"").empty());
        CLocalRegStore::WriteString(*ini, section.c_str(), key.c_str(), std::to_wstring(++number).c_str());
        Expect(state, CLocalRegStore::Save(*ini, path.c_str()));
        CLocalRegStore::DestroyIniFile(ini);
    }
}

void LoadGetSavePeer(benchmark::State& state, int keys)
{
    const Settings settings(keys);
    const wxString file = settings.NamedPath();
    const wxString path = "/" + settings.Section(keys / 2) + "/" + settings.Key(keys / 2);
    int number = 0;
    for (auto _ : state) {
        wxFileConfig config("", "", file, "", wxCONFIG_USE_LOCAL_FILE);
        Expect(state, !config.Read(path, wxString()).empty());
        Expect(state, config.Write(path, ++number));
        Expect(state, config.Flush());
    }
}

BENCHMARK(GetWarm)->Name("store/get-warm");
BENCHMARK(GetWarmPeer)->Name("store/get-warm/peer");
BENCHMARK(FileGet)->Name("store/file-get");
BENCHMARK(FileGetPeer)->Name("store/file-get/peer");
// Measure the elapsed time of the benchmarks that save a file: the processor time does not include the wait for the
// disk.
BENCHMARK(FileSet)->Name("store/file-set")->UseRealTime();
BENCHMARK(FileSetPeer)->Name("store/file-set/peer")->UseRealTime();
BENCHMARK(CloseWindow)->Name("store/close-window")->UseRealTime();
BENCHMARK(CloseWindowPeer)->Name("store/close-window/peer")->UseRealTime();
BENCHMARK_CAPTURE(LoadGetSave, 10k, 10'000)->Name("store/10k-load-get-save")->UseRealTime();
BENCHMARK_CAPTURE(LoadGetSave, 100k, 100'000)->Name("store/100k-load-get-save")->UseRealTime();
BENCHMARK_CAPTURE(LoadGetSavePeer, 100k, 100'000)->Name("store/100k-load-get-save/peer")->UseRealTime();

}  // namespace
