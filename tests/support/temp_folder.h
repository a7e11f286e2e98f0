#ifndef FITTINGS_TESTS_SUPPORT_TEMP_FOLDER_H_
#define FITTINGS_TESTS_SUPPORT_TEMP_FOLDER_H_

#include <string>
#include <vector>

/// Puts the folders made during its life into memory, where there is such a place: who saves a thousand files would wait
/// for the disk for long, and a disk that is busy with something else makes others wait for a lock for too long.
class InMemory
{
public:
    InMemory();
    ~InMemory();
    InMemory(const InMemory&) = delete;
    InMemory& operator=(const InMemory&) = delete;

private:
    const bool m_hadFolder;
    const std::string m_folder;
};

/// A new folder that goes, with all it holds, when the object does.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return m_path; }

    /// The path of @a name in the folder.
    std::string operator/(const std::string& name) const { return m_path + "/" + name; }

private:
    std::string m_path;
};

/// A new, empty user data directory for as long as the object lives.
class TempUserData : public TempFolder
{
public:
    TempUserData();
    ~TempUserData();
};

/// The names of what is in a folder, sorted.
std::vector<std::string> NamesIn(const std::string& folder);

/// The bytes of a file; empty when it cannot be read.
std::string ReadFile(const std::string& path);

/// Writes a file anew; fails the test when it cannot.
void WriteFile(const std::string& path, const std::string& bytes);

#endif
