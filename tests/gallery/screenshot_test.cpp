// SaveScreenshot(), which takes the tour's pictures.

#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gtest/gtest.h>
#include <wx/frame.h>

#include <gallery/pages/window_helpers.h>
#include <gallery/tour/screenshot.h>
#include <tests/support/owned_window.h>
#include <tests/support/temp_folder.h>

namespace gallery {
namespace {

TEST(AScreenshot, ShowsAWindowWithItsDecorationsThoughItHasNoPlaceYet)
{
    TempFolder folder;
    const std::string path = folder / "frame.png";
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "A frame", wxPoint(60, 40), wxSize(300, 200)));
    frame->Show();
    EXPECT_TRUE(SaveScreenshot(frame->GetHandle(), path));

    const wxRect shown = FrameRect(frame->GetHandle());
    int width = 0;
    int height = 0;
    EXPECT_NE(gdk_pixbuf_get_file_info(path.c_str(), &width, &height), nullptr);
    EXPECT_EQ(wxSize(width, height), shown.GetSize());
    EXPECT_GE(height, frame->GetClientSize().y + 10);
    EXPECT_GE(width, 300);
}

TEST(AScreenshot, IsFalseWhereItCannotBeWritten)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "A frame"));
    frame->Show();
    EXPECT_FALSE(SaveScreenshot(frame->GetHandle(), "/proc/frame.png"));
}

}  // namespace
}  // namespace gallery
