#include <tests/colour/screen.h>

#include <memory>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

wxImage GrabScreen(const wxRect& rect)
{
    const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
    wxImage grabbed(rect.GetSize());
    XImage* const seen =
        XGetImage(display.get(), DefaultRootWindow(display.get()), rect.x, rect.y, static_cast<unsigned>(rect.width),
                  static_cast<unsigned>(rect.height), AllPlanes, ZPixmap);
    for (int y = 0; y < rect.height; ++y) {
        for (int x = 0; x < rect.width; ++x) {
            const unsigned long pixel = XGetPixel(seen, x, y);
            grabbed.SetRGB(x, y, static_cast<unsigned char>(pixel >> 16), static_cast<unsigned char>(pixel >> 8),
                           static_cast<unsigned char>(pixel));
        }
    }
    XDestroyImage(seen);
    return grabbed;
}

int PixelOf(const wxImage& image, int x, int y)
{
    return image.GetRed(x, y) << 16 | image.GetGreen(x, y) << 8 | image.GetBlue(x, y);
}

int PixelOfScreen(const wxPoint& at)
{
    return PixelOf(GrabScreen(wxRect(at, wxSize(1, 1))), 0, 0);
}
