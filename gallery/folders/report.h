#ifndef FITTINGS_GALLERY_FOLDERS_REPORT_H_
#define FITTINGS_GALLERY_FOLDERS_REPORT_H_

#include <string>
#include <vector>

#include <gallery/folders/folder_listing.h>

namespace gallery {

/// Returns a table of comma-separated values as RFC 4180 describes it, in UTF-8: a header, and a line for each entry.
///
/// A size that is not known, of a folder that was not added up among others, is left empty. Names are as a person sees
/// them, see DisplayText().
std::string ReportText(const std::string& folder, const std::vector<Entry>& entries);

/// Writes the file whole or leaves what was there. Returns 0, or the errno that says why it was not written.
int SaveReport(const std::string& path, const std::string& text);

}  // namespace gallery

#endif
