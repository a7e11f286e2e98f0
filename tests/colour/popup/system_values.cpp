#include <tests/colour/popup/system_values.h>
#include <tests/support/replaced_function.h>

#include <wx/settings.h>

namespace {

bool g_themePinned = false;
std::optional<int> g_edge;

}  // namespace

PinnedTheme::PinnedTheme()
{
    g_themePinned = true;
}

PinnedTheme::~PinnedTheme()
{
    g_themePinned = false;
}

PinnedEdge::PinnedEdge(int width)
{
    g_edge = width;
}

PinnedEdge::~PinnedEdge()
{
    g_edge.reset();
}

// The functions below replace the toolkit's functions.

wxColour wxSystemSettingsNative::GetColour(wxSystemColour index)
{
    if (g_themePinned && index == wxSYS_COLOUR_BTNFACE)
        return kFace;
    if (g_themePinned && index == wxSYS_COLOUR_BTNSHADOW)
        return kShadow;
    if (g_themePinned && index == wxSYS_COLOUR_BTNHIGHLIGHT)
        return kHighlight;
    if (g_themePinned && index == wxSYS_COLOUR_3DDKSHADOW)
        return kDark;
    static auto* const toolkits =
        ReplacedFunction<wxColour(wxSystemColour)>("_ZN22wxSystemSettingsNative9GetColourE14wxSystemColour");
    return toolkits(index);
}

int wxSystemSettingsNative::GetMetric(wxSystemMetric index, const wxWindow* window)
{
    if (g_edge && index == wxSYS_EDGE_X)
        return *g_edge;
    static auto* const toolkits = ReplacedFunction<int(wxSystemMetric, const wxWindow*)>(
        "_ZN22wxSystemSettingsNative9GetMetricE14wxSystemMetricPK8wxWindow");
    return toolkits(index, window);
}
