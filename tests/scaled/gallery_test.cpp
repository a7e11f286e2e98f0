#include <filesystem>

#include <wx/imaglist.h>

#include <tests/gallery/browser_fixture.h>
#include <tests/scaled/scaled_screen.h>

namespace {

namespace fs = std::filesystem;
using namespace fittings::simulated_user;

class GalleryOnAScaledScreen : public BrowserTest
{
protected:
    /// The image left of an item's label.
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
    // Finer than the toolkit's pixels, and so not one that was made larger.
    EXPECT_TRUE(PumpUntil([&] { return !IsOfWholePixels(GrabScaled(ImageOf("a"))); }));
    for (int image = 0; image < Tree().GetImageList()->GetImageCount(); ++image)
        EXPECT_EQ(Tree().GetImageList()->GetBitmap(image).GetScaleFactor(), 2) << image;
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
