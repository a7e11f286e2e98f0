#include <gallery/folders/folder_size.h>

#include <algorithm>
#include <cerrno>
#include <unordered_set>
#include <utility>
#include <vector>

#include <sys/stat.h>

#include <gallery/folders/open_folder.h>

namespace gallery {

namespace {

// The number of folders that stay open, counted upwards from the current folder. The folders above these are closed,
// and later opened again through "..".
constexpr std::size_t kMostOpen = 64;

struct FileId
{
    dev_t device;
    ino_t inode;

    bool operator==(const FileId& other) const { return device == other.device && inode == other.inode; }
};

struct HashFileId
{
    std::size_t operator()(const FileId& id) const
    {
        return std::hash<std::uint64_t>()(id.inode * 0x9E3779B97F4A7C15u ^ id.device);
    }
};

struct Pending
{
    std::string name;
    std::uint64_t bytes;  // The size of the folder itself, without its contents.
};

// A folder on the path from the top folder to the current folder.
struct Level
{
    Folder folder;  // Null while it is closed to save descriptors.
    FileId id{};    // Identifies the folder while it is closed.
    std::vector<Pending> subfolders;
    std::size_t next = 0;
    double start = 0;  // Where the folder's share of the progress begins, from 0 to 1.
    double span = 1;

    double Share() const { return span / static_cast<double>(subfolders.size()); }
    double Done() const { return subfolders.empty() ? start + span : start + Share() * static_cast<double>(next); }
};

class Walk
{
public:
    explicit Walk(SizeObserver& observer) : m_observer(observer) {}

    FolderSum Run(const std::string& path)
    {
        struct stat status;
        const bool known = lstat(path.c_str(), &status) == 0;
        Count(known ? &status : nullptr, 0);
        if (known && m_goesOn)
            Enter(AT_FDCWD, path.c_str(), 0, 1);
        while (m_goesOn && !m_levels.empty()) {
            Level& level = m_levels.back();
            if (level.next == level.subfolders.size())
                Leave();
            else
                EnterNext(level);
        }
        return m_sum;
    }

private:
    void EnterNext(Level& level)
    {
        const Pending& subfolder = level.subfolders[level.next];
        if (m_levels.size() == 1)
            m_before = m_sum;
        const double start = level.Done();
        const double span = level.Share();
        if (level.folder && Enter(dirfd(level.folder.get()), subfolder.name.c_str(), start, span))
            return;
        if (!level.folder)
            ++m_sum.unreadable;
        Finish();
    }

    // Reads a folder and makes it the current one.
    bool Enter(int parent, const char* name, double start, double span)
    {
        Folder folder = OpenFolder(parent, name, O_NOFOLLOW);
        if (!folder) {
            ++m_sum.unreadable;
            return false;
        }
        Level level;
        level.start = start;
        level.span = span;
        while (m_goesOn) {
            const dirent* entry = NextEntry(folder.get());
            if (!entry) {
                m_sum.unreadable += errno != 0;
                break;
            }
            struct stat status;
            const bool known = fstatat(dirfd(folder.get()), entry->d_name, &status, kLookAtLinks) == 0;
            if (!known && errno == ENOENT)
                continue;  // removed in the meantime
            Count(known ? &status : nullptr, start);
            if (known && S_ISDIR(status.st_mode))
                level.subfolders.push_back({entry->d_name, static_cast<std::uint64_t>(status.st_size)});
        }
        level.folder = std::move(folder);
        m_levels.push_back(std::move(level));
        if (m_levels.size() > kMostOpen)
            Close(m_levels[m_levels.size() - 1 - kMostOpen]);
        return true;
    }

    void Leave()
    {
        const Folder left = std::move(m_levels.back().folder);
        m_levels.pop_back();
        if (m_levels.empty())
            return;
        Level& above = m_levels.back();
        if (!above.folder)
            above.folder = Reopen(left.get(), above.id);
        Finish();
    }

    // Counts the current subfolder as finished, and reports it if its parent is the top folder.
    void Finish()
    {
        Level& level = m_levels.back();
        const Pending& subfolder = level.subfolders[level.next++];
        if (m_levels.size() == 1) {
            m_observer.OnSubfolder(subfolder.name,
                                   {m_sum.bytes - m_before.bytes + subfolder.bytes, m_sum.items - m_before.items + 1,
                                    m_sum.unreadable - m_before.unreadable});
        }
        TellProgress(level.Done());
    }

    void Count(const struct stat* status, double fraction)
    {
        ++m_sum.items;
        if (!status)
            ++m_sum.unreadable;
        else if (S_ISDIR(status->st_mode) || status->st_nlink == 1 ||
                 m_linked.insert({status->st_dev, status->st_ino}).second)
            m_sum.bytes += static_cast<std::uint64_t>(status->st_size);
        TellProgress(fraction);
    }

    void TellProgress(double fraction)
    {
        // Never let the fraction fall: shares are rounded, so the next folder may begin slightly before the end of the
        // previous one.
        m_fraction = std::max(m_fraction, fraction);
        m_goesOn = m_observer.OnProgress(m_sum, m_fraction);
    }

    static void Close(Level& level)
    {
        struct stat status
        {
        };
        if (level.folder && fstat(dirfd(level.folder.get()), &status) == 0) {
            level.id = {status.st_dev, status.st_ino};
            level.folder.reset();
        }
    }

    // Opens the parent of @a below. Returns null if this fails, or if the parent is not the folder @a id, as after a
    // move.
    static Folder Reopen(DIR* below, const FileId& id)
    {
        Folder folder = below ? OpenFolder(dirfd(below), "..") : nullptr;
        struct stat status;
        if (folder && fstat(dirfd(folder.get()), &status) == 0 && FileId{status.st_dev, status.st_ino} == id)
            return folder;
        return nullptr;
    }

    SizeObserver& m_observer;
    FolderSum m_sum;
    FolderSum m_before;  // The sum before the walk entered the current subfolder of the top folder.
    double m_fraction = 0;
    bool m_goesOn = true;
    std::vector<Level> m_levels;
    std::unordered_set<FileId, HashFileId> m_linked;
};

}  // namespace

FolderSum SumFolder(const std::string& path, SizeObserver& observer)
{
    return Walk(observer).Run(path);
}

}  // namespace gallery
