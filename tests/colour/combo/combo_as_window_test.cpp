// The colour combo behaves among other windows as the toolkit's combo control does.

#include <gtest/gtest.h>

#include <wx/uiaction.h>

#include <tests/colour/combo/combo_on_screen.h>

namespace {

TEST(ColourComboCreate, TakesAllThatTheToolkitsTakes)
{
    class Validator : public wxValidator
    {
    public:
        wxObject* Clone() const override { return new Validator; }
    };
    const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "combo"));
    auto* const panel = new wxPanel(frame);
    auto* const combo = new wxColourCombo;
    EXPECT_EQ(combo->GetHandle(), nullptr);
    EXPECT_TRUE(combo->Create(panel, 123, "Red", wxPoint(10, 20), wxSize(170, 40), wxCB_READONLY, Validator(), "line"));
    EXPECT_EQ(combo->GetParent(), panel);
    EXPECT_EQ(combo->GetId(), 123);
    EXPECT_EQ(combo->GetValue(), "Red");
    EXPECT_EQ(combo->GetRect(), wxRect(10, 20, 170, 40));
    EXPECT_TRUE(combo->HasFlag(wxCB_READONLY));
    EXPECT_NE(dynamic_cast<Validator*>(combo->GetValidator()), nullptr);
    EXPECT_EQ(combo->GetName(), "line");
    EXPECT_EQ(wxWindow::FindWindowByName("line", frame), combo);
}

// wxColourCombo and wxColourPopup have no class information of their own. GetClassInfo() returns the class information
// of wxComboCtrl for the combo, and of wxWindow for the popup.
TEST(ColourComboClass, IsTheToolkits)
{
    const ComboOnScreen<> on;
    EXPECT_EQ(on.combo->GetClassInfo(), wxCLASSINFO(wxComboCtrl));
    EXPECT_EQ(on.popup->GetClassInfo(), wxCLASSINFO(wxWindow));
    wxWindow* const window = on.combo;
    EXPECT_EQ(wxDynamicCast(window, wxComboCtrl), on.combo);
    EXPECT_EQ(dynamic_cast<wxColourCombo*>(window), on.combo);
}

}  // namespace

// A class that a host derives from wxColourCombo and registers with the toolkit, which can then create it by its name.
class RecordedCombo : public wxColourCombo
{
    wxDECLARE_DYNAMIC_CLASS(RecordedCombo);
};

wxIMPLEMENT_DYNAMIC_CLASS(RecordedCombo, wxColourCombo);

namespace {

TEST(ColourComboClass, MayBeTheHosts)
{
    const ComboOnScreen<> on;
    auto* const combo = dynamic_cast<RecordedCombo*>(wxCreateDynamicObject("RecordedCombo"));
    ASSERT_NE(combo, nullptr);
    combo->Create(on.panel, wxID_ANY);
    combo->SetPopupControl(new wxColourPopup);
    EXPECT_EQ(wxDynamicCast(static_cast<wxWindow*>(combo), RecordedCombo), combo);
    EXPECT_TRUE(combo->IsKindOf(wxCLASSINFO(wxComboCtrl)));
    EXPECT_FALSE(on.combo->IsKindOf(wxCLASSINFO(RecordedCombo)));
}

// A combo control of the toolkit and a colour combo, each with a colour popup.
class BesideTheToolkits : public testing::TestWithParam<long>
{
protected:
    void SetUp() override
    {
        plain->SetPopupControl(new wxColourPopup);
        plain->SetName("plain");
        ASSERT_TRUE(ShowAndSettle(on.frame));
    }

    ComboOnScreen<> on{GetParam()};
    wxComboCtrl* plain =
        new wxComboCtrl(on.panel, wxID_ANY, "", wxPoint(20, 200), wxSize(150, -1), static_cast<long>(GetParam()));
    wxComboCtrl* const both[2] = {plain, on.combo};
};

INSTANTIATE_TEST_SUITE_P(, BesideTheToolkits, testing::Values(wxCB_READONLY, 0), NameOfStyle);

TEST_P(BesideTheToolkits, HasTheSameBestSize)
{
    EXPECT_GT(plain->GetBestSize().y, 20);
    EXPECT_EQ(on.combo->GetBestSize(), plain->GetBestSize());
    EXPECT_EQ(on.combo->GetSizeFromTextSize(100), plain->GetSizeFromTextSize(100));
    EXPECT_EQ(on.combo->GetButtonSize(), plain->GetButtonSize());
    EXPECT_EQ(on.combo->GetTextRect(), plain->GetTextRect());
    for (wxComboCtrl* const combo : both) {
        EXPECT_TRUE(combo->SetFont(wxFontInfo(40)));
        combo->InvalidateBestSize();
    }
    EXPECT_EQ(on.combo->GetBestSize(), plain->GetBestSize());
}

TEST_P(BesideTheToolkits, KeepsColoursAndFont)
{
    const wxFont font(wxFontInfo(14).Family(wxFONTFAMILY_TELETYPE));
    for (wxComboCtrl* const combo : both) {
        EXPECT_TRUE(combo->SetForegroundColour(*wxRED));
        EXPECT_TRUE(combo->SetBackgroundColour(*wxYELLOW));
        EXPECT_TRUE(combo->SetFont(font));
        EXPECT_EQ(combo->GetForegroundColour(), *wxRED);
        EXPECT_EQ(combo->GetBackgroundColour(), *wxYELLOW);
        EXPECT_EQ(combo->GetFont(), font);
    }
    // The colours belong to the control, not to the popup.
    EXPECT_NE(on.popup->GetBackgroundColour(), *wxYELLOW);
    on.combo->EnablePopupAnimation(false);
    on.combo->Popup();
    EXPECT_TRUE(on.combo->IsPopupShown());
    on.combo->Dismiss();
}

TEST_P(BesideTheToolkits, HoldsTheSameValues)
{
    for (wxComboCtrl* const combo : both) {
        combo->SetValue("Red");
        EXPECT_EQ(combo->GetValue(), "Red");
        combo->ChangeValue("a colour");
        EXPECT_EQ(combo->GetValue(), "a colour");
        combo->SetValueByUser("Lime");
        EXPECT_EQ(combo->GetValue(), "Lime");
        combo->SetValue("");
        EXPECT_EQ(combo->GetValue(), "");
        EXPECT_TRUE(combo->IsEmpty());
    }
    on.combo->SetValue("Red");
    plain->SetValue("Red");
    on.combo->Clear();
    plain->Clear();
    EXPECT_EQ(on.combo->GetValue(), plain->GetValue());
}

TEST_P(BesideTheToolkits, OpensByAButtonOnTheLeft)
{
    on.combo->SetButtonPosition(-1, -1, wxLEFT);
    PumpPending();
    const wxPoint place = on.combo->ClientToScreen(wxPoint(8, on.combo->GetClientSize().y / 2));
    wxUIActionSimulator user;
    PointTo(place);
    user.MouseClick();
    EXPECT_TRUE(PumpUntil([&] { return on.combo->IsPopupShown(); }));
    on.combo->Dismiss();
}

TEST_P(BesideTheToolkits, OpensAtTheSideThatItIsAnchoredTo)
{
    on.combo->SetSize(400, -1);
    on.combo->SetPopupAnchor(wxRIGHT);
    on.combo->EnablePopupAnimation(false);
    ASSERT_TRUE(Opens(*on.combo));
    EXPECT_EQ(on.popup->GetScreenRect().GetRight(), on.combo->GetScreenRect().GetRight());
    on.combo->Dismiss();
    on.combo->SetPopupAnchor(wxLEFT);
    ASSERT_TRUE(Opens(*on.combo));
    EXPECT_EQ(on.popup->GetScreenRect().x, on.combo->GetScreenRect().x);
    on.combo->Dismiss();
}

TEST_P(BesideTheToolkits, OpensAgainAfterBeingFrozen)
{
    on.combo->Freeze();
    on.combo->SetValue("Lime");
    on.combo->Thaw();
    EXPECT_FALSE(on.combo->IsFrozen());
    ASSERT_TRUE(Opens(*on.combo));
    on.popup->ChangeSelection(16);
    on.popup->EndSelection(true);
    EXPECT_EQ(on.combo->GetValue(), "Red");
}

// The popup has the size of its layout. The sizes that the host sets on the combo have no effect.
TEST_P(BesideTheToolkits, HasAPopupOfItsOwnSize)
{
    on.combo->SetPopupMinWidth(400);
    on.combo->SetPopupMaxHeight(50);
    on.combo->SetPopupExtents(30, 30);
    on.combo->EnablePopupAnimation(false);
    ASSERT_TRUE(Opens(*on.combo));
    EXPECT_EQ(on.popup->GetSize(), on.popup->m_rectWindow.GetSize());
    on.combo->Dismiss();
}

}  // namespace
