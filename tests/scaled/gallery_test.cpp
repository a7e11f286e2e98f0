#include <filesystem>

#include <wx/toolbar.h>

#include <tests/gallery/browser/browser_fixture.h>
#include <tests/scaled/scaled_screen.h>

namespace {

namespace fs = std::filesystem;
using namespace gallery::simulated_user;

// Returns whether each inner column of the image equals a column beside it, as in an enlarged image.
bool WasMadeLarger(const wxImage& image)
{
    const auto areAlike = [&](int x, int other) {
        for (int y = 0; y < image.GetHeight(); ++y) {
            if (image.GetRed(x, y) != image.GetRed(other, y) || image.GetGreen(x, y) != image.GetGreen(other, y) ||
                image.GetBlue(x, y) != image.GetBlue(other, y))
                return false;
        }
        return true;
    };
    for (int x = 1; x + 1 < image.GetWidth(); ++x) {
        if (!areAlike(x, x - 1) && !areAlike(x, x + 1))
            return false;
    }
    return true;
}

class GalleryOnAScaledScreen : public BrowserTest
{
protected:
    // Returns the rectangle of the image to the left of an item's label.
    wxRect ImageOf(const std::string& path)
    {
        const wxRect label = LabelRect(Tree(), Item(path));
        return {label.x - 20, label.y, 16, label.height};
    }
};

TEST_F(GalleryOnAScaledScreen, HasSharpImagesInTheTree)
{
    fs::create_directory(temp / "a");
    fs::create_directory(temp / "b");
    Open(root);
    Tree().Expand(Tree().GetRootItem());
    // The image has details finer than the toolkit's pixels, so it was not enlarged.
    EXPECT_TRUE(PumpUntil([&] { return !IsOfWholePixels(GrabScaled(ImageOf("a"))); }));
    for (int image = 0; image < Tree().GetImageList()->GetImageCount(); ++image)
        EXPECT_EQ(Tree().GetImageList()->GetBitmap(image).GetScaleFactor(), 2) << image;
}

TEST_F(GalleryOnAScaledScreen, HasSharpImagesOnItsTools)
{
    Open(root);
    for (const int id : {wxID_OPEN, wxID_UP, wxID_REFRESH, wxID_SAVEAS}) {
        const wxBitmapBundle image = frame->GetBrowser()->GetTools()->FindById(id)->GetNormalBitmapBundle();
        EXPECT_FALSE(WasMadeLarger(image.GetBitmap(2 * image.GetDefaultSize()).ConvertToImage()))
            << "tool " << id << ": does the icon theme have images in colour, as adwaita-icon-theme-legacy?";
    }
}

TEST_F(GalleryOnAScaledScreen, ComesBackWhereItWas)
{
    Open(root);
    frame->SetSize(150, 120, 700, 500);
    ASSERT_TRUE(ShowAndSettle(frame));
    ASSERT_TRUE(PumpUntil([&] { return frame->GetRect() == wxRect(150, 120, 700, 500); })) << frame->GetRect().x;
    Close();
    Open("");
    EXPECT_TRUE(PumpUntil([&] { return frame->GetRect() == wxRect(150, 120, 700, 500); }))
        << frame->GetRect().x << ";" << frame->GetRect().y << ";" << frame->GetRect().width << ";"
        << frame->GetRect().height;
}

}  // namespace
