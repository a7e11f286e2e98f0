#ifndef FITTINGS_GALLERY_TOUR_TOUR_H_
#define FITTINGS_GALLERY_TOUR_TOUR_H_

#include <functional>
#include <string>

#include <gallery/tour/demo_folder.h>

struct _GtkWidget;
class wxPoint;
class wxWindow;

namespace gallery {

class GalleryFrame;

/// A tour of the program. It drives the program's window by simulated input and takes a picture of each component.
///
/// The tour keeps its settings apart from the user's.
class Tour
{
public:
    /// Run() makes the folder @a pictures if it is missing, and puts the pictures into it. The tour browses @a folder.
    /// If @a folder is empty, the tour browses a folder that the constructor makes.
    Tour(const std::string& pictures, const std::string& folder);

    /// Runs all steps and prints the result of each. Returns true when all steps succeeded. Needs an active event loop.
    bool Run();

private:
    bool OpenWindow();
    bool ExpandByKeyboard();
    bool SortByHeader();
    bool AddUpFolders();
    bool LeaveOutSmallOnes();
    bool SaveReport();
    bool ChooseFolder();
    bool CancelFolder();
    bool OpenRecentFolder();
    bool ColourFolder();
    bool TypeNumber();
    bool ChooseColour();
    bool RememberWindow();
    bool RememberMaximised();
    bool RememberAnotherWindow();

    bool IsTrue(bool condition, const char* claim);
    bool Waits(const std::function<bool()>& condition, const char* claim);
    bool VisitDialog(char key, const char* claim, const std::function<bool(_GtkWidget*)>& visit);
    bool AcceptFile(_GtkWidget* dialog, const std::string& file, const char* picture);
    bool ShowPage(char key, const wxWindow* page);
    bool OpenFolderColours();
    bool FolderGets(int cell);
    bool SavePicture(const char* component);

    /// Moves the pointer to @a pointer before the picture is taken.
    bool SavePicture(const char* component, const wxPoint& pointer);
    bool Reopen();

    std::string m_pictures;
    DemoFolder m_demo;
    std::string m_folder;
    GalleryFrame* m_frame = nullptr;
};

}  // namespace gallery

#endif
