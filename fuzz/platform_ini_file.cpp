// INI files: loading and saving any file changes nothing, and setting a value changes only that value, in memory and in
// the file.

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <fittings/platform/local_reg_store.h>
#include <fuzz/support/check.h>
#include <fuzzer/FuzzedDataProvider.h>
#include <tests/support/temp_user_data.h>

namespace {

constexpr const wchar_t* kAbsent = L"<absent>";

const std::string& FolderPath()
{
    static const InMemory inMemory;
    static const TempFolder folder;
    return folder.Path();
}

struct File
{
    explicit File(const char* name) : path(FolderPath() + "/" + name), widePath(path.begin(), path.end()) {}
    ~File() { std::remove(path.c_str()); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    std::string Bytes() const
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    void SetBytes(const std::string& bytes) const { std::ofstream(path, std::ios::binary) << bytes; }

    const std::string path;
    const std::wstring widePath;
};

struct Destroy
{
    void operator()(CIniFile* ini) const { CLocalRegStore::DestroyIniFile(ini); }
};
using Ini = std::unique_ptr<CIniFile, Destroy>;

Ini NewIni()
{
    return Ini(CLocalRegStore::CreateInitFile(false));
}

struct Address
{
    std::wstring section;
    std::wstring key;

    bool operator==(const Address& other) const { return section == other.section && key == other.key; }
};

std::wstring Get(const Ini& ini, const Address& address)
{
    return CLocalRegStore::GetString(*ini, address.section.c_str(), address.key.c_str(), kAbsent);
}

// Returns whether the file lists the section and the key, each once.
bool HasName(const Ini& ini, const Address& address)
{
    const auto contains = [](const std::vector<std::wstring>& names, const std::wstring& name) {
        return std::count(names.begin(), names.end(), name) == 1;
    };
    return contains(CLocalRegStore::GetSectionNames(*ini), address.section) &&
           contains(CLocalRegStore::GetKeyNames(*ini, address.section.c_str()), address.key);
}

// Returns a part of the file. Such a part is often the name of a section or key. Bytes that are not ASCII become
// unusual characters.
std::wstring ConsumeText(FuzzedDataProvider& bytes, const std::string& file)
{
    constexpr wchar_t kUnusual[] = {0x1, 0x85, 0xA0, 0x2028, 0xD800, 0xDFFF, 0xFEFF, 0x10FFFF, 0x110000};
    const std::size_t start = bytes.ConsumeIntegral<std::uint8_t>();
    const std::size_t length = bytes.ConsumeIntegralInRange(0, 20);
    std::wstring text;
    for (const unsigned char byte : file.substr(std::min(start, file.size()), length))
        text += byte < 0x80 ? static_cast<wchar_t>(byte) : kUnusual[byte % std::size(kUnusual)];
    return text.substr(0, text.find(L'\0'));
}

Address ConsumeAddress(FuzzedDataProvider& bytes, const std::string& file)
{
    const std::wstring section = ConsumeText(bytes, file);
    return {section, ConsumeText(bytes, file)};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The last ten bytes choose what to set and to read. The rest is the content of the file.
    constexpr std::size_t kChoices = 10;
    if (size < kChoices)
        return 0;
    const std::string content(reinterpret_cast<const char*>(data), size - kChoices);
    FuzzedDataProvider bytes(data + size - kChoices, kChoices);
    const Address set = ConsumeAddress(bytes, content);
    const Address other = ConsumeAddress(bytes, content);
    const std::wstring value = ConsumeText(bytes, content);

    const File file("read.ini");
    const File saved("saved.ini");
    file.SetBytes(content);
    const Ini ini = NewIni();
    const bool isLoaded = CLocalRegStore::Load(*ini, file.widePath.c_str());
    if (isLoaded) {
        Check(CLocalRegStore::Save(*ini, saved.widePath.c_str()), "the file can be saved");
        Check(saved.Bytes() == content, "an unchanged file keeps its bytes");
    }

    const std::wstring otherValue = Get(ini, other);
    CLocalRegStore::WriteString(*ini, set.section.c_str(), set.key.c_str(), value.c_str());
    Check(Get(ini, set) == value, "a set value is returned");
    Check(set == other || Get(ini, other) == otherValue, "another value is unchanged");
    Check(HasName(ini, set), "a set key is listed");
    Check(HasName(ini, other) == (Get(ini, other) != kAbsent), "exactly the keys with a value are listed");

    Check(CLocalRegStore::Save(*ini, saved.widePath.c_str()), "a changed file can be saved");
    const Ini again = NewIni();
    Check(CLocalRegStore::Load(*again, saved.widePath.c_str()), "a saved file can be loaded");
    Check(Get(again, set) == value, "a set value is read back");
    Check(set == other || Get(again, other) == otherValue, "another value is read back");

    Check(CLocalRegStore::DeleteKey(*again, set.section.c_str(), set.key.c_str()), "the key to delete exists");
    Check(!HasName(again, set) && Get(again, set) == kAbsent, "a deleted key does not exist");
    return 0;
}
