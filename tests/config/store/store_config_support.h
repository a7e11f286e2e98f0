#ifndef FITTINGS_TESTS_CONFIG_STORE_STORE_CONFIG_SUPPORT_H_
#define FITTINGS_TESTS_CONFIG_STORE_STORE_CONFIG_SUPPORT_H_

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <fittings/config/store_config.h>
#include <tests/support/temp_folder.h>

/// Returns the names of the entries in the current group, in the order of the file.
inline std::vector<wxString> EntryNames(const wxConfigBase& config)
{
    std::vector<wxString> names;
    wxString name;
    long place = 0;
    for (bool more = config.GetFirstEntry(name, place); more; more = config.GetNextEntry(name, place))
        names.push_back(name);
    return names;
}

/// Returns the names of the groups in the current group, in the order of the file.
inline std::vector<wxString> GroupNames(const wxConfigBase& config)
{
    std::vector<wxString> names;
    wxString name;
    long place = 0;
    for (bool more = config.GetFirstGroup(name, place); more; more = config.GetNextGroup(name, place))
        names.push_back(name);
    return names;
}

/// Returns the contents of the current group, with all groups in it, as an INI file without empty lines.
inline wxString Dump(wxConfigBase& config)
{
    wxString text;
    for (const wxString& name : EntryNames(config))
        text += name + "=" + config.Read(name) + "\n";
    for (const wxString& name : GroupNames(config)) {
        const wxConfigPathChanger inGroup(&config, name + "/");
        text += "[" + config.GetPath().substr(1) + "]\n" + Dump(config);
    }
    return text;
}

/// A named file and a wxStoreConfig that uses it.
class StoreConfig : public UserDataTest
{
protected:
    std::string Path() const { return data / "ui_config/test.ini"; }

    /// Writes @a text to the file, and opens the file with a new object.
    void Open(const std::string& text)
    {
        m_config.reset();
        std::filesystem::create_directories(data / "ui_config");
        WriteFile(Path(), text);
        Reopen();
    }

    /// Destroys the object, and opens the file with a new one.
    void Reopen()
    {
        m_config.reset();
        m_config = std::make_unique<wxStoreConfig>("test.ini");
    }

    /// Saves, and returns what another object reads from the file.
    wxString Saved()
    {
        EXPECT_TRUE(m_config->Flush());
        wxStoreConfig other("test.ini");
        return Dump(other);
    }

    void ExpectContents(const wxString& text)
    {
        EXPECT_EQ(Dump(*m_config), text);
        EXPECT_EQ(Saved(), text);
    }

    std::unique_ptr<wxStoreConfig> m_config = std::make_unique<wxStoreConfig>("test.ini");
};

#endif
