// The grammar of INI files: IniText finds every section and key that GKeyFile finds, if IsOwnName() accepts the name.
// IniText and GKeyFile read the same values.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <glib.h>

#include <fittings/platform/embedded/text/ini_codec.h>
#include <fittings/platform/embedded/text/ini_text.h>
#include <fuzz/support/check.h>

namespace {

struct Unref
{
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, Unref>;

KeyFile Load(const std::string& text)
{
    KeyFile file(g_key_file_new());
    const bool isLoaded =
        g_key_file_load_from_data(file.get(), text.data(), text.size(), G_KEY_FILE_KEEP_TRANSLATIONS, nullptr);
    return isLoaded ? std::move(file) : nullptr;
}

std::vector<std::string> Taken(gchar** names)
{
    std::vector<std::string> taken;
    for (gchar** name = names; name && *name; ++name)
        taken.emplace_back(*name);
    g_strfreev(names);
    return taken;
}

// Returns whether the name is spelled as the library writes it. The fuzzer does not compare names with other spellings:
// two spellings of one name are the same name for the library, and two names for GKeyFile.
bool IsOwnName(const std::string& name)
{
    return fittings::EncodeName(fittings::DecodeName(name)) == name;
}

std::optional<std::string> ValueOf(const KeyFile& file, const std::string& section, const std::string& key)
{
    gchar* const given = g_key_file_get_value(file.get(), section.c_str(), key.c_str(), nullptr);
    if (!given)
        return std::nullopt;
    std::string value = given;
    g_free(given);
    return value;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    // Compare only UTF-8 without null characters: GKeyFile ends a line at a null character and skips some bytes that
    // are not UTF-8.
    const KeyFile file = g_utf8_validate_len(bytes.data(), bytes.size(), nullptr) ? Load(bytes) : nullptr;
    if (!file)
        return 0;
    const fittings::IniText text(bytes);
    Check(text.IsSettings(), "a text with settings for GKeyFile has settings");
    for (const std::string& section : Taken(g_key_file_get_groups(file.get(), nullptr))) {
        if (!IsOwnName(section))
            continue;
        Check(text.HasSection(section), "the section exists");
        for (const std::string& key : Taken(g_key_file_get_keys(file.get(), section.c_str(), nullptr, nullptr))) {
            if (IsOwnName(key))
                Check(text.Find(section, key) == ValueOf(file, section, key), "the value is the same");
        }
    }
    for (const std::string_view section : text.Sections()) {
        if (!g_key_file_has_group(file.get(), std::string(section).c_str()))
            continue;
        for (const auto& [key, value] : text.Keys(section)) {
            const auto expected = ValueOf(file, std::string(section), std::string(key));
            Check(!expected || *expected == value, "the value is that of GKeyFile");
        }
    }
    return 0;
}
