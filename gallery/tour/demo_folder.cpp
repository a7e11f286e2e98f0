#include <gallery/tour/demo_folder.h>

#include <cstdint>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <wx/datetime.h>

namespace gallery {

namespace {

namespace fs = std::filesystem;

struct DemoFile
{
    const char* path;
    std::int64_t size;
    int day;  // Days after 1 March 2026.
};

constexpr DemoFile kFiles[] = {
    {"Documents/Contracts/Flat.pdf", 482133, 0},
    {"Documents/Contracts/Insurance.pdf", 1204512, 3},
    {"Documents/Letters/Letter 1.odt", 28114, 1},
    {"Documents/Letters/Letter 2.odt", 31570, 2},
    {"Documents/Letters/Letter 10.odt", 29982, 9},
    {"Documents/Budget 2026.ods", 94208, 12},
    {"Documents/Notes.txt", 3071, 13},
    {"Music/Live at the Mill/01 Opening.flac", 31457280, 4},
    {"Music/Live at the Mill/02 Slow River.flac", 27262976, 4},
    {"Music/Practice/Scales.mp3", 4404019, 6},
    {"Photos/2025 Mountains/Panorama.tif", 148897792, 5},
    {"Photos/2025 Mountains/Ridge.jpg", 5242880, 5},
    {"Photos/2025 Mountains/Ridge.xmp", 4711, 6},
    {"Photos/2025 Mountains/Summit.jpg", 6815744, 5},
    {"Photos/2025 Mountains/Raw files/Ridge.dng", 41943040, 5},
    {"Photos/2025 Mountains/Raw files/Summit.dng", 44040192, 5},
    {"Photos/2026 Lake/Evening.jpg", 4718592, 11},
    {"Photos/2026 Lake/Morning.jpg", 3984588, 11},
    {"Videos/Birthday.mp4", 1610612736, 8},
    {"Videos/Garden.mp4", 734003200, 10},
    {"Shopping list.txt", 412, 13},
    {".hidden settings", 96, 7},
};

void SetTime(const fs::path& path, int day)
{
    timespec time{};
    time.tv_sec = (wxDateTime(1, wxDateTime::Mar, 2026, 9, 26) + wxDateSpan::Days(day)).GetTicks();
    const timespec times[] = {time, time};
    utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW);
}

bool MakeFile(const fs::path& path, std::int64_t size)
{
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (file < 0)
        return false;
    const bool sized = ftruncate(file, size) == 0;
    close(file);
    return sized;
}

bool Fill(const fs::path& root)
{
    for (const DemoFile& file : kFiles) {
        if (!MakeFile(root / file.path, file.size))
            return false;
        SetTime(root / file.path, file.day);
    }
    std::error_code error;
    fs::create_symlink("../../Photos", root / "Photos/2026 Lake/All photos", error);
    SetTime(root / "Photos/2026 Lake/All photos", 11);
    fs::create_directory(root / "Private", error);
    chmod((root / "Private").c_str(), 0);
    for (const auto& entry : fs::recursive_directory_iterator(root, fs::directory_options::skip_permission_denied)) {
        if (entry.is_directory() && !entry.is_symlink())
            SetTime(entry.path(), 13);
    }
    SetTime(root, 13);
    return true;
}

}  // namespace

// Uses the name "fittings-tour" if it is free, so that all pictures show the same path. If the name is taken, for
// example by another running tour, uses a unique name.
DemoFolder::DemoFolder() : m_work((fs::temp_directory_path() / "fittings-tour").native())
{
    if (mkdir(m_work.c_str(), 0700) != 0) {
        m_work += "-XXXXXX";
        if (!mkdtemp(m_work.data())) {
            m_work.clear();
            return;
        }
    }
    if (Fill(m_work + "/Home"))
        m_path = m_work + "/Home";
}

DemoFolder::~DemoFolder()
{
    if (m_work.empty())
        return;
    std::error_code ignored;
    chmod((m_work + "/Home/Private").c_str(), 0700);
    fs::remove_all(m_work, ignored);
}

}  // namespace gallery
