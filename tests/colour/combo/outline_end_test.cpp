// The end of the animation that opens the popup: the outline window is hidden before the background is drawn.

#include <vector>

#include <gtest/gtest.h>

#include <wx/popupwin.h>

#include <tests/colour/combo/combo_on_screen.h>
#include <tests/support/replaced_function.h>

#include <cairo-xlib.h>
#include <gdk/gdkx.h>

namespace {

constexpr int kLong = 2000000;

const wxWindow* g_outline = nullptr;

// One element for each cairo_paint() that drew directly on the screen, not in a window: whether the outline window was
// shown at that moment.
std::vector<bool> g_wasShown;

bool DrawsOnTheScreen(cairo_t* context)
{
    cairo_surface_t* const target = cairo_get_target(context);
    return cairo_surface_get_type(target) == CAIRO_SURFACE_TYPE_XLIB &&
           cairo_xlib_surface_get_drawable(target) == GDK_ROOT_WINDOW();
}

}  // namespace

// Replaces cairo's function: adds an element to g_wasShown if the picture is drawn directly on the screen, and calls
// the original.
void cairo_paint(cairo_t* context)
{
    static const auto original = ReplacedFunction<decltype(cairo_paint)>("cairo_paint");
    if (g_outline && DrawsOnTheScreen(context))
        g_wasShown.push_back(g_outline->IsShown());
    original(context);
}

namespace {

TEST(ColourOutlineEnd, HidesTheOutlineBeforeItDrawsTheBackground)
{
    const ComboOnScreen<> on;
    on.combo->m_animDuration = kLong;
    ASSERT_TRUE(ShowAndSettle(on.frame));
    on.combo->Popup();
    const auto step = [&] {
        wxTimerEvent event(on.combo->m_animTimer);
        on.combo->OnTimerEvent(event);
    };
    on.combo->m_animStart = wxGetLocalTimeMillis() - kLong / 2;
    step();
    g_outline = nullptr;
    for (wxWindow* const child : on.combo->GetChildren()) {
        if (dynamic_cast<wxPopupWindow*>(child) && child != on.combo->GetPopupWindow())
            g_outline = child;
    }
    ASSERT_TRUE(g_outline && g_outline->IsShown());

    on.combo->m_animDuration = 0;
    step();
    EXPECT_TRUE(on.combo->IsPopupShown());
    EXPECT_EQ(g_wasShown, std::vector<bool>{false}) << "the background is drawn once, after the outline is hidden";
    g_outline = nullptr;
    on.combo->Dismiss();
}

}  // namespace
