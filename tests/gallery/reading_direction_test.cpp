// Texts begin at the left, or at the right for a language that is read from right to left.

#include <gtk/gtk.h>

#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;

struct Room
{
    int left;
    int right;
};

// Returns the free width on both sides of a label's text.
Room Around(const wxString& name, const wxWindow* parent)
{
    auto* const label = GTK_LABEL(wxWindow::FindWindowByName(name, parent)->GetHandle());
    PangoRectangle text;
    pango_layout_get_pixel_extents(gtk_label_get_layout(label), nullptr, &text);
    int x = 0;
    gtk_label_get_layout_offsets(label, &x, nullptr);
    GtkAllocation place;
    gtk_widget_get_allocation(GTK_WIDGET(label), &place);
    const int left = x + text.x - place.x;
    return {left, place.width - left - text.width};
}

class TextsOfTheGallery : public BrowserTest
{
protected:
    void ExpectBeginAtTheStart(const wxString& name)
    {
        const bool isRightToLeft = frame->GetLayoutDirection() == wxLayout_RightToLeft;
        Room room{};
        EXPECT_TRUE(PumpUntil([&] {
            room = Around(name, frame);
            return (isRightToLeft ? room.right : room.left) == 0 && (isRightToLeft ? room.left : room.right) > 20;
        })) << name
            << ": " << room.left << " at the left, " << room.right << " at the right";
    }
};

TEST_F(TextsOfTheGallery, BeginWhereReadingDoes)
{
    WriteFile(temp / "file", "x");
    Open(root);
    for (const char* name : {"Location", "Sum"})
        ExpectBeginAtTheStart(name);
    Press('2', wxMOD_ALT);
    for (const char* name : {"ValidateInputResult", "CutZerosResult", "FormatControlTextResult"})
        ExpectBeginAtTheStart(name);
}

}  // namespace
