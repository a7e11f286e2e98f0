#include <tests/support/temp_folder.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include <unistd.h>

#include <gtest/gtest.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

namespace {

constexpr const char* kMemory = "/dev/shm";

/// Restores the rights that a test has removed from folders. Otherwise only root could empty them.
void OpenFolders(const std::filesystem::path& folder)
{
    std::error_code ignored;
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (!entry->is_symlink(ignored) && entry->is_directory(ignored))
            OpenFolders(entry->path());
    }
}

std::string TempFolderOfTheEnvironment()
{
    const char* const folder = getenv("TMPDIR");
    return folder ? folder : "";
}

}  // namespace

InMemory::InMemory() : m_hadFolder(getenv("TMPDIR") != nullptr), m_folder(TempFolderOfTheEnvironment())
{
    if (access(kMemory, W_OK) == 0)
        setenv("TMPDIR", kMemory, 1);
}

InMemory::~InMemory()
{
    if (m_hadFolder)
        setenv("TMPDIR", m_folder.c_str(), 1);
    else
        unsetenv("TMPDIR");
}

TempFolder::TempFolder()
{
    std::string path = (std::filesystem::temp_directory_path() / "fittings-XXXXXX").string();
    if (!mkdtemp(path.data()))
        ADD_FAILURE() << "no folder " << path;
    m_path = path;
}

TempFolder::~TempFolder()
{
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
    if (error) {
        OpenFolders(m_path);
        std::filesystem::remove_all(m_path, error);
    }
}

TempUserData::TempUserData()
{
    std_file_paths::SetUserDataDir(file_util_ex::ConvertFromUTF8W(Path()));
}

TempUserData::~TempUserData()
{
    std_file_paths::SetUserDataDir(L"");
}

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteFile(const std::string& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.close();
    if (!file)
        ADD_FAILURE() << "cannot write " << path;
}
