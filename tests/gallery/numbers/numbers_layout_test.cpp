// The tab order of the controls, and the page in a small window.

#include <wx/choice.h>

#include <tests/gallery/numbers/numbers_page_fixture.h>

namespace {

using namespace gallery::simulated_user;

TEST_F(NumbersPageTest, TabGoesFromTheTopToTheBottom)
{
    ExpectTabOrder({"Validates",    "Keep",        "BringBack",       "NumberCtrl",   "eLocaleFormat",
                    "eFixedFormat", "AllowSign",   "AllowExponent",   "DecimalPoint", "ThousandsSep",
                    "HasDecimals",  "Decimals",    "HasMaxIntDigits", "MaxIntDigits", "HasMin",
                    "HasMax",       "PadDecimals", "RoundDecimals",   "GroupDigits",  "TrailingMinus",
                    "Template",     "Number"});
}

TEST_F(NumbersPageTest, FitsIntoASmallWindow)
{
    for (const wxSize size : {wxSize(800, 600), wxSize(632, 480)}) {
        Resize(size);
        const wxWindow& page = Page();
        for (const wxWindow* part : page.GetChildren())
            EXPECT_LE(part->GetRect().GetRight(), page.GetClientSize().x) << part->GetName();
        for (const wxWindow* part : Fields().GetChildren()) {
            EXPECT_GE(WindowRect(*part).GetLeft(), WindowRect(page).GetLeft()) << part->GetName();
            EXPECT_LE(WindowRect(*part).GetRight(), WindowRect(page).GetRight()) << part->GetName();
        }
        // A control outside the visible part of the page is scrolled into view when it gets the focus.
        GoTo("Number", 'N');
        GoTo("Template", 'L');
        EXPECT_TRUE(PumpUntil([&] { return WindowRect(page).Contains(WindowRect(Get<wxChoice>("Template"))); }));
    }
}

}  // namespace
