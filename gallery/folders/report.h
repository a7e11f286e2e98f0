#ifndef FITTINGS_GALLERY_FOLDERS_REPORT_H_
#define FITTINGS_GALLERY_FOLDERS_REPORT_H_

#include <string>
#include <vector>

#include <gallery/folders/folder_listing.h>

namespace gallery {

/// Returns a table of comma-separated values in UTF-8, as RFC 4180 describes it: a header, and a line for each entry.
///
/// The field for the size is empty for an entry without a size, such as a folder whose total size was not computed.
/// Names and paths are as DisplayText() returns them.
std::string ReportText(const std::string& folder, const std::vector<Entry>& entries);

/// Replaces the file atomically, or leaves it unchanged. Returns 0, or the errno of the failure.
int SaveReport(const std::string& path, const std::string& text);

}  // namespace gallery

#endif
