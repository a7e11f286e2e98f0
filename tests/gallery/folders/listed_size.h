#ifndef FITTINGS_TESTS_GALLERY_FOLDERS_LISTED_SIZE_H_
#define FITTINGS_TESTS_GALLERY_FOLDERS_LISTED_SIZE_H_

#include <cstdint>
#include <string>

/// The sizes of a folder and of everything below it, added up from what find lists: a file with several names once.
/// du is no measure of it: whether its apparent size has the folders' own sizes in it depends on its version.
std::uint64_t ListedSize(const std::string& path);

#endif
