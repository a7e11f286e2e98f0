#include <gallery/folders/report.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <glib.h>
#include <sys/stat.h>

#include <gallery/folders/native_text.h>

namespace gallery {

namespace {

std::string Quoted(const std::string& text)
{
    if (text.find_first_of("\",\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    return quoted + '"';
}

}  // namespace

std::string ReportText(const std::string& folder, const std::vector<Entry>& entries)
{
    std::string text = "Name,Kind,Bytes,Modified,Path\r\n";
    for (const Entry& entry : entries) {
        text += Quoted(DisplayText(entry.name).utf8_string()) + ',' + Quoted(entry.type) + ',';
        if (entry.HasSize())
            text += std::to_string(entry.size);
        text += ',';
        if (entry.known)
            text += HumanTime(entry.modified).utf8_string();
        text += ',' + Quoted(DisplayText(JoinPath(folder, entry.name)).utf8_string()) + "\r\n";
    }
    return text;
}

int SaveReport(const std::string& path, const std::string& text)
{
    // If the path is a link, write to its target, so that the link stays a link. Keep the permissions of the file.
    std::error_code error;
    std::string file = std::filesystem::canonical(path, error);
    if (error)
        file = path;
    struct stat status;
    const int mode = stat(file.c_str(), &status) == 0 ? static_cast<int>(status.st_mode & 07777) : 0666;
    const auto flags = static_cast<GFileSetContentsFlags>(G_FILE_SET_CONTENTS_CONSISTENT | G_FILE_SET_CONTENTS_DURABLE);
    errno = 0;
    if (g_file_set_contents_full(file.c_str(), text.data(), static_cast<gssize>(text.size()), flags, mode, nullptr))
        return 0;
    return errno != 0 ? errno : EIO;
}

}  // namespace gallery
