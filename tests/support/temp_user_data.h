#ifndef FITTINGS_TESTS_SUPPORT_TEMP_USER_DATA_H_
#define FITTINGS_TESTS_SUPPORT_TEMP_USER_DATA_H_

#include <string>

/// While this object exists, new temporary folders are made in memory, if the system allows it. A test that saves a
/// thousand files is slow on a disk. On a busy disk, the library's waits for locks time out.
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

/// A new folder that is removed with its contents when the object is destroyed.
class TempFolder
{
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& Path() const { return m_path; }

    /// Returns the path of @a name in the folder.
    std::string operator/(const std::string& name) const { return m_path + "/" + name; }

private:
    std::string m_path;
};

/// A new, empty user data directory that exists as long as the object.
class TempUserData : public TempFolder
{
public:
    TempUserData();
    ~TempUserData();
};

/// A user data directory that is made in memory, if the system allows it.
class UserDataInMemory : private InMemory, public TempUserData
{
};

#endif
