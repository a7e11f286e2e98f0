#include <fittings/xrc/number_ctrl_handler.h>

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <fittings/numedit/number_ctrl.h>
#include <tests/support/gui.h>
#include <tests/xrc/loaded_resource.h>

// A host's class that controls.xrc names as the subclass of a control.
class OwnNumber : public wxNumberCtrl
{
    wxDECLARE_DYNAMIC_CLASS(OwnNumber);
};

wxIMPLEMENT_DYNAMIC_CLASS(OwnNumber, wxNumberCtrl);

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using NumberCtrlXmlHandler = LoadedResourceTest;

TEST_F(NumberCtrlXmlHandler, GivesWhatTheResourceSays)
{
    wxFrame* const frame = resource.MakeFrame("numbers");
    ASSERT_NE(frame, nullptr);
    EXPECT_THAT(resource.errors, IsEmpty());
    auto* const weight = dynamic_cast<wxNumberCtrl*>(frame->FindWindow("weight"));
    ASSERT_NE(weight, nullptr);
    EXPECT_EQ(weight->GetId(), XRCID("weight"));
    EXPECT_TRUE(weight->HasFlag(wxTE_RIGHT));
    EXPECT_EQ(weight->GetToolTipText(), "In kilograms");
    EXPECT_EQ(weight->GetDecimal(), "1072.5");
    EXPECT_EQ(weight->GetValue(), "1072.500 kg") << "the C locale has no groups";
    weight->SetDecimal("2500.51");
    EXPECT_FALSE(weight->IsAcceptable());
    weight->SetDecimal("-1");
    EXPECT_FALSE(weight->IsAcceptable());
    EXPECT_EQ(dynamic_cast<wxNumberCtrl*>(frame->FindWindow("plain-number"))->GetDecimal(), "");
    auto* const own = dynamic_cast<OwnNumber*>(frame->FindWindow("own-number"));
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->GetValue(), "5.00");
}

TEST_F(NumberCtrlXmlHandler, MakesAControlThatStepsAsTheResourceSays)
{
    wxFrame* const frame = resource.MakeFrame("numbers");
    auto* const weight = dynamic_cast<wxNumberCtrl*>(frame->FindWindow("weight"));
    ASSERT_NE(weight, nullptr);
    ASSERT_TRUE(ShowAndSettle(frame));
    weight->SetFocus();
    ASSERT_TRUE(PumpUntil([&] { return weight->HasFocus(); }));
    wxUIActionSimulator().Char(WXK_UP);
    EXPECT_TRUE(PumpUntil([&] { return weight->GetDecimal() == "1072.75"; })) << weight->GetDecimal();
}

TEST_F(NumberCtrlXmlHandler, ReportsWhatItCannotUnderstandAndTakesWhatIsUsual)
{
    wxPanel* const panel = resource.MakePanel("bad-number");
    ASSERT_NE(panel, nullptr);
    for (const char* const value : {"wxTE_FANCY", "1,5", "many", "-1", "-3", "%n"})
        EXPECT_THAT(resource.errors, Contains(HasSubstr('"' + std::string(value) + '"')).Times(1)) << value;
    EXPECT_EQ(resource.errors.size(), 6U);
    auto* const number = dynamic_cast<wxNumberCtrl*>(panel->FindWindow("bad"));
    ASSERT_NE(number, nullptr);
    EXPECT_EQ(number->GetValue(), "");
    number->SetNumber(-7);
    EXPECT_EQ(number->GetValue(), "-7.00");
    EXPECT_TRUE(number->IsAcceptable());
}

TEST_F(NumberCtrlXmlHandler, ReportsTheBoundThatIsInvalidAndTakesTheOther)
{
    wxPanel* const panel = resource.MakePanel("bad-bounds");
    ASSERT_NE(panel, nullptr);
    ASSERT_EQ(resource.errors.size(), 3U);
    EXPECT_THAT(resource.errors[0], HasSubstr("\"few\""));
    EXPECT_THAT(resource.errors[1], HasSubstr("\"lots\""));
    EXPECT_THAT(resource.errors[2], HasSubstr("\"5\""));
    const auto accepts = [panel](const char* name, const char* number) {
        auto* const control = dynamic_cast<wxNumberCtrl*>(panel->FindWindow(name));
        return control->SetDecimal(number) && control->IsAcceptable();
    };
    EXPECT_TRUE(accepts("bad-min", "-7"));
    EXPECT_FALSE(accepts("bad-min", "21"));
    EXPECT_TRUE(accepts("bad-max", "700"));
    EXPECT_FALSE(accepts("bad-max", "9"));
    EXPECT_TRUE(accepts("low-max", "700"));
    EXPECT_FALSE(accepts("low-max", "9"));
}

TEST_F(NumberCtrlXmlHandler, MakesAPlainControlInsteadOfASubclassThatIsNone)
{
    wxPanel* const panel = resource.MakePanel("wrong-number");
    EXPECT_THAT(resource.errors, Contains("the object to load is no wxNumberCtrl").Times(1));
    EXPECT_NE(dynamic_cast<wxNumberCtrl*>(panel->FindWindow("number")), nullptr);
    ASSERT_EQ(StrayObject::made.size(), 1U);
}

}  // namespace
