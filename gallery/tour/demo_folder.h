#ifndef FITTINGS_GALLERY_TOUR_DEMO_FOLDER_H_
#define FITTINGS_GALLERY_TOUR_DEMO_FOLDER_H_

#include <string>

namespace gallery {

/// Folders and files for the tour, and a place for the tour's settings. The names, sizes and times of the files are the
/// same on every machine. The destructor removes everything.
///
/// The files are sparse: they have sizes, but their contents take no space.
class DemoFolder
{
public:
    DemoFolder();
    ~DemoFolder();
    DemoFolder(const DemoFolder&) = delete;
    DemoFolder& operator=(const DemoFolder&) = delete;

    /// Returns the path of the folder that contains the files; empty when the files could not be made.
    const std::string& Path() const { return m_path; }

    /// Returns the path of the folder for the tour's settings. The constructor does not make this folder.
    std::string SettingsPath() const { return m_work + "/settings"; }

private:
    std::string m_work;
    std::string m_path;
};

}  // namespace gallery

#endif
