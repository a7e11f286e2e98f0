#include <gallery/pages/readable_colour.h>

#include <cmath>

#include <wx/gdicmn.h>

namespace gallery {

namespace {

constexpr double kReadableRatio = 4.5;
constexpr int kSteps = 32;

double Linear(unsigned char channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const wxColour& colour)
{
    return 0.2126 * Linear(colour.Red()) + 0.7152 * Linear(colour.Green()) + 0.0722 * Linear(colour.Blue());
}

// Returns a mix of two colours: @a from at step 0, @a to at step kSteps.
wxColour Between(const wxColour& from, const wxColour& to, int step)
{
    const auto mix = [step](unsigned char a, unsigned char b) {
        return static_cast<unsigned char>(a + (b - a) * step / kSteps);
    };
    return {mix(from.Red(), to.Red()), mix(from.Green(), to.Green()), mix(from.Blue(), to.Blue())};
}

}  // namespace

double ContrastRatio(const wxColour& a, const wxColour& b)
{
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

const wxColour& BlackOrWhiteOn(const wxColour& background)
{
    return ContrastRatio(background, *wxWHITE) > ContrastRatio(background, *wxBLACK) ? *wxWHITE : *wxBLACK;
}

wxColour ReadableOn(const wxColour& background, const wxColour& colour)
{
    const wxColour& farthest = BlackOrWhiteOn(background);
    wxColour readable = colour;
    for (int step = 1; step <= kSteps && ContrastRatio(background, readable) < kReadableRatio; ++step)
        readable = Between(colour, farthest, step);
    return readable;
}

}  // namespace gallery
