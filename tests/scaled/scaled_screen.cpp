#include <tests/scaled/scaled_screen.h>

#include <cstring>

#include <tests/colour/screen.h>

namespace {

// Divides the image, from (@a left, @a top) on, into squares of 2 x 2 pixels: one square for each of the toolkit's
// pixels. Returns whether every square has only one colour.
bool IsOfWholePixels(const wxImage& scaled, int left, int top)
{
    const unsigned char* const data = scaled.GetData();
    const auto at = [&](int x, int y) { return data + std::ptrdiff_t(3) * (y * scaled.GetWidth() + x); };
    for (int y = top; y < scaled.GetHeight(); ++y) {
        for (int x = left; x < scaled.GetWidth(); ++x) {
            if (std::memcmp(at(x, y), at(x - (x - left) % 2, y - (y - top) % 2), 3) != 0)
                return false;
        }
    }
    return true;
}

}  // namespace

wxImage GrabScaled(const wxRect& rect)
{
    return GrabScreen(wxRect(2 * rect.x, 2 * rect.y, 2 * rect.width, 2 * rect.height));
}

int PixelAt(const wxPoint& place)
{
    const wxImage seen = GrabScaled(wxRect(place, wxSize(1, 1)));
    return seen.GetRed(1, 1) << 16 | seen.GetGreen(1, 1) << 8 | seen.GetBlue(1, 1);
}

bool IsOfWholePixels(const wxImage& scaled)
{
    return IsOfWholePixels(scaled, 0, 0) || IsOfWholePixels(scaled, 1, 0) || IsOfWholePixels(scaled, 0, 1) ||
           IsOfWholePixels(scaled, 1, 1);
}
