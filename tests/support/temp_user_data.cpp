#include <tests/support/temp_user_data.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <unistd.h>

#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

namespace {

constexpr const char* kMemory = "/dev/shm";

// Gives the owner all rights on the folder and its subfolders. A test may have removed these rights, and without
// them only root can empty the folders.
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
        throw std::system_error(errno, std::generic_category(), path);
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
