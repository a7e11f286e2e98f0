#include <tests/gallery/folders/listed_size.h>

#include <set>
#include <sstream>

#include <tests/support/process/child_process.h>

std::uint64_t ListedSize(const std::string& path)
{
    std::istringstream lines(RunChild({"find", path, "-printf", "%D:%i %s\n"}));
    std::set<std::string> seen;
    std::uint64_t sum = 0;
    std::string file;
    std::uint64_t size = 0;
    while (lines >> file >> size) {
        if (seen.insert(file).second)
            sum += size;
    }
    return sum;
}
