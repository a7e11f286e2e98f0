#include <gtest/gtest.h>

#include <wx/frame.h>

#include <fittings/numedit/number_ctrl.h>

#include <tests/scaled/scaled_screen.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

namespace {

// The digits have details that are finer than the toolkit's pixels. An enlarged image has no such details.
TEST(ANumberOnAScaledScreen, IsSharpAndAsHighAsATextField)
{
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "Number"));
    auto* const number = new wxNumberCtrl(frame, wxID_ANY, CNumberFormat(eFixedFormat));
    number->SetNumber(12345);
    auto* const plain = new wxTextCtrl(frame, wxID_ANY);
    EXPECT_EQ(number->GetBestSize().y, plain->GetBestSize().y);
    plain->Destroy();
    ASSERT_TRUE(ShowAndSettle(frame));
    ASSERT_EQ(number->GetContentScaleFactor(), 2);
    const wxRect text(number->ClientToScreen(wxPoint(10, 0)), wxSize(50, number->GetSize().y));
    EXPECT_TRUE(PumpUntil([&] { return !IsOfWholePixels(GrabScaled(text)); }));
}

}  // namespace
