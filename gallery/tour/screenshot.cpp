#include <gallery/tour/screenshot.h>

#include <chrono>
#include <cstring>
#include <memory>

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

#include <gallery/pages/window_helpers.h>
#include <gallery/tour/simulated_user.h>

namespace gallery {

namespace {

using Clock = std::chrono::steady_clock;

// How long nothing must change before a picture is taken.
constexpr std::chrono::milliseconds kStill(400);

struct Unref
{
    void operator()(void* object) const { g_object_unref(object); }
};
using Pixels = std::unique_ptr<GdkPixbuf, Unref>;

Pixels ReadScreen(const wxRect& rect)
{
    GdkWindow* screen = gdk_get_default_root_window();
    const wxRect visible = rect.Intersect(wxRect(0, 0, gdk_window_get_width(screen), gdk_window_get_height(screen)));
    if (visible.IsEmpty())
        return nullptr;
    return Pixels(gdk_pixbuf_get_from_window(screen, visible.x, visible.y, visible.width, visible.height));
}

bool AreEqual(const Pixels& a, const Pixels& b)
{
    return a && b && gdk_pixbuf_get_byte_length(a.get()) == gdk_pixbuf_get_byte_length(b.get()) &&
           std::memcmp(gdk_pixbuf_read_pixels(a.get()), gdk_pixbuf_read_pixels(b.get()),
                       gdk_pixbuf_get_byte_length(a.get())) == 0;
}

// Returns whether all pixels are equal, as in a window that is not drawn yet.
bool IsOfOneColour(const Pixels& pixels)
{
    const guint8* const bytes = gdk_pixbuf_read_pixels(pixels.get());
    const auto pixel = static_cast<std::size_t>(gdk_pixbuf_get_n_channels(pixels.get()));
    const auto row = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(pixels.get()));
    const std::size_t width = static_cast<std::size_t>(gdk_pixbuf_get_width(pixels.get())) * pixel;
    for (int y = 0; y < gdk_pixbuf_get_height(pixels.get()); ++y) {
        const guint8* const line = bytes + static_cast<std::size_t>(y) * row;
        if (std::memcmp(line, bytes, pixel) != 0 || std::memcmp(line, line + pixel, width - pixel) != 0)
            return false;
    }
    return true;
}

}  // namespace

bool CanReadScreen()
{
    return GDK_IS_X11_DISPLAY(gdk_display_get_default());
}

bool SaveScreenshot(GtkWidget* window, const std::string& path)
{
    Pixels seen;
    Clock::time_point changed = Clock::now();
    const bool stands = simulated_user::WaitUntil([&] {
        // Get the rectangle each time: the place and the decorations of a window that was just shown can still change.
        Pixels now = ReadScreen(FrameRect(window));
        if (!AreEqual(seen, now) || IsOfOneColour(now))
            changed = Clock::now();
        seen = std::move(now);
        return Clock::now() - changed >= kStill;
    });
    return stands && gdk_pixbuf_save(seen.get(), path.c_str(), "png", nullptr, nullptr);
}

}  // namespace gallery
