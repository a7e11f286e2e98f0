#ifndef FITTINGS_TESTS_GALLERY_FOLDERS_LISTED_SIZE_H_
#define FITTINGS_TESTS_GALLERY_FOLDERS_LISTED_SIZE_H_

#include <cstdint>
#include <string>

/// Returns the sum of the sizes of a folder and everything below it, from the output of find. A file with several names
/// counts once. The command du cannot be used: only some versions of du count the folders' own sizes.
std::uint64_t ListedSize(const std::string& path);

#endif
