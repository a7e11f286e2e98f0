#include <gallery/folders/folder_listing.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <filesystem>
#include <system_error>
#include <tuple>

#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gallery/folders/open_folder.h>

namespace gallery {

namespace {

using Clock = std::chrono::steady_clock;

// The shown types, in the order of EntryKind.
constexpr const char* kTypes[] = {"Folder", "File", "Link", "Pipe", "Socket", "Device", "Unknown"};

EntryKind KindOfMode(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFDIR:
        return EntryKind::Folder;
    case S_IFREG:
        return EntryKind::File;
    case S_IFLNK:
        return EntryKind::Link;
    case S_IFIFO:
        return EntryKind::Pipe;
    case S_IFSOCK:
        return EntryKind::Socket;
    case S_IFBLK:
    case S_IFCHR:
        return EntryKind::Device;
    default:
        return EntryKind::Unknown;
    }
}

bool IsFolder(int folder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat status;
    return fstatat(folder, entry.d_name, &status, kLookAtLinks) == 0 && S_ISDIR(status.st_mode);
}

// Returns a text such as "PNG file" for picture.png. Returns "Program" or "File" for a file without an extension. An
// extension has one to five ASCII letters and digits, at least one of them a letter. Its dot is not the first
// character of the name.
std::string TypeOfFile(const std::string& name, bool executable)
{
    const std::size_t dot = name.rfind('.');
    if (dot != std::string::npos && dot > 0 && dot + 1 < name.size() && name.size() - dot <= 6) {
        std::string extension = name.substr(dot + 1);
        if (std::all_of(extension.begin(), extension.end(), [](char c) { return g_ascii_isalnum(c); }) &&
            std::any_of(extension.begin(), extension.end(), [](char c) { return g_ascii_isalpha(c); })) {
            for (char& c : extension)
                c = g_ascii_toupper(c);
            return extension + " file";
        }
    }
    return executable ? "Program" : "File";
}

std::string TargetOf(int folder, const char* name)
{
    char target[PATH_MAX];
    const ssize_t length = readlinkat(folder, name, target, sizeof(target));
    return length > 0 ? std::string(target, static_cast<std::size_t>(length)) : std::string();
}

// Fills in the kind, the type, the target, the size and the time. Returns 0, or the errno if fstatat() fails.
int Describe(Entry& entry, int folder, const dirent& found)
{
    struct stat status;
    bool executable = false;
    int error = 0;
    if (fstatat(folder, found.d_name, &status, kLookAtLinks) == 0) {
        entry.known = true;
        entry.kind = KindOfMode(status.st_mode);
        entry.size = entry.kind == EntryKind::File ? static_cast<std::uint64_t>(status.st_size) : 0;
        entry.modified = status.st_mtime;
        executable = (status.st_mode & 0111) != 0;
    } else {
        error = errno;
        entry.kind = KindOfMode(DTTOIF(found.d_type));
    }
    if (entry.kind == EntryKind::Link)
        entry.target = TargetOf(folder, found.d_name);
    entry.type = entry.kind == EntryKind::File ? TypeOfFile(entry.name, executable)
                                               : kTypes[static_cast<std::size_t>(entry.kind)];
    return error;
}

// Finds out whether a folder in @a parent can be read and whether it has a subfolder.
void LookInto(Subfolder& subfolder, int parent)
{
    const Folder folder = OpenFolder(parent, subfolder.name.c_str(), O_NOFOLLOW);
    subfolder.mayHaveSubfolders = false;
    subfolder.readable = folder != nullptr;
    if (!folder)
        return;
    while (const dirent* entry = NextEntry(folder.get())) {
        if (IsFolder(dirfd(folder.get()), *entry)) {
            subfolder.mayHaveSubfolders = true;
            return;
        }
    }
}

// Returns @a name without case and accents. If @a name is not UTF-8, changes only the case of its ASCII letters.
std::string Folded(const std::string& name)
{
    const bool ascii = std::all_of(name.begin(), name.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    if (ascii || !g_utf8_validate(name.data(), static_cast<gssize>(name.size()), nullptr)) {
        std::string folded = name;
        for (char& c : folded)
            c = g_ascii_tolower(c);
        return folded;
    }
    g_autofree gchar* decomposed = g_utf8_normalize(name.data(), static_cast<gssize>(name.size()), G_NORMALIZE_ALL);
    g_autofree gchar* lower = g_utf8_casefold(decomposed, -1);
    std::string folded;
    for (const gchar *c = lower, *next; *c; c = next) {
        next = g_utf8_next_char(c);
        if (!g_unichar_ismark(g_utf8_get_char(c)))
            folded.append(c, next);
    }
    return folded;
}

}  // namespace

Listing ReadFolder(const std::string& path)
{
    Listing listing;
    const Folder folder = OpenFolder(AT_FDCWD, path.c_str());
    if (!folder) {
        listing.error = errno;
        return listing;
    }
    while (const dirent* found = NextEntry(folder.get())) {
        Entry entry;
        entry.name = found->d_name;
        const int error = Describe(entry, dirfd(folder.get()), *found);
        if (error == ENOENT)
            continue;  // removed in the meantime
        if (error != 0 && listing.error == 0)
            listing.error = error;
        entry.sortKey = SortKey(entry.name);
        listing.entries.push_back(std::move(entry));
    }
    if (errno != 0 && listing.error == 0)
        listing.error = errno;
    return listing;
}

std::vector<Subfolder> ReadSubfolders(const std::string& path)
{
    std::vector<Subfolder> subfolders;
    const Folder folder = OpenFolder(AT_FDCWD, path.c_str());
    if (!folder)
        return subfolders;
    while (const dirent* entry = NextEntry(folder.get())) {
        if (!IsFolder(dirfd(folder.get()), *entry))
            continue;
        Subfolder subfolder;
        subfolder.name = entry->d_name;
        subfolder.sortKey = SortKey(subfolder.name);
        subfolders.push_back(std::move(subfolder));
    }
    std::sort(subfolders.begin(), subfolders.end(), [](const Subfolder& a, const Subfolder& b) {
        return std::tie(a.sortKey, a.name) < std::tie(b.sortKey, b.name);
    });
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(50);
    for (Subfolder& subfolder : subfolders) {
        if (Clock::now() > deadline)
            break;
        LookInto(subfolder, dirfd(folder.get()));
    }
    return subfolders;
}

std::string SortKey(const std::string& name)
{
    const std::string folded = Folded(name);
    std::string key;
    key.reserve(folded.size() + 2);
    for (std::size_t i = 0; i < folded.size();) {
        if (!g_ascii_isdigit(folded[i])) {
            key += folded[i++];
            continue;
        }
        while (i + 1 < folded.size() && folded[i] == '0' && g_ascii_isdigit(folded[i + 1]))
            ++i;
        std::size_t end = i;
        while (end < folded.size() && g_ascii_isdigit(folded[end]))
            ++end;
        // Put the length of a number before its digits, because a longer number is greater. The length fits in a byte:
        // a file name has at most 255 bytes.
        key += '0';
        key += static_cast<char>(end - i);
        key.append(folded, i, end - i);
        i = end;
    }
    return key;
}

std::vector<std::uint32_t> SortedPositions(const std::vector<Entry>& entries, SortOrder order)
{
    std::vector<std::uint32_t> positions(entries.size());
    for (std::size_t i = 0; i < positions.size(); ++i)
        positions[i] = static_cast<std::uint32_t>(i);

    // Returns a negative number when a comes before b in an ascending list, and 0 when the column does not decide.
    const auto compare = [column = order.column](const Entry& a, const Entry& b) {
        switch (column) {
        case SortColumn::Size:
            return a.size < b.size ? -1 : a.size > b.size ? 1 : 0;
        case SortColumn::Type:
            return a.type.compare(b.type);
        case SortColumn::Modified:
            return a.modified < b.modified ? -1 : a.modified > b.modified ? 1 : 0;
        case SortColumn::Name:
            break;
        }
        return a.sortKey.compare(b.sortKey);
    };
    std::sort(positions.begin(), positions.end(), [&](std::uint32_t left, std::uint32_t right) {
        const Entry& a = entries[left];
        const Entry& b = entries[right];
        const bool aIsFolder = a.kind == EntryKind::Folder;
        if (aIsFolder != (b.kind == EntryKind::Folder))
            return aIsFolder;
        if (const int difference = compare(a, b))
            return (difference < 0) == order.ascending;
        const int difference = a.sortKey.compare(b.sortKey);
        return difference != 0 ? difference < 0 : a.name < b.name;
    });
    return positions;
}

std::string JoinPath(const std::string& folder, const std::string& name)
{
    return !folder.empty() && folder.back() == '/' ? folder + name : folder + "/" + name;
}

std::string ResolveFolder(const std::string& path)
{
    std::error_code error;
    const std::filesystem::path resolved = std::filesystem::canonical(path, error);
    if (!error && std::filesystem::is_directory(resolved, error))
        return resolved;
    errno = error ? error.value() : ENOTDIR;
    return {};
}

}  // namespace gallery
