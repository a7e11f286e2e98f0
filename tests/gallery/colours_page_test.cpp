#include <chrono>
#include <string>

#include <gtk/gtk.h>
#include <wx/checkbox.h>
#include <wx/dataview.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <gallery/colours/colour_option_fields.h>
#include <gallery/colours/colours_page.h>
#include <tests/gallery/page_fixture.h>

namespace {

using namespace gallery;
using namespace gallery::simulated_user;
using Clock = std::chrono::steady_clock;

constexpr int kDarkRedCell = 8;
constexpr int kIndigoCell = 6;
constexpr int kYellowCell = 26;
const wxColour kDarkRed(139, 0, 0);
const wxColour kIndigo(75, 0, 130);

class ColoursPageTest : public PageTest
{
protected:
    void SetUp() override
    {
        Open(temp.Path());
        ShowPage();
    }

    void ShowPage()
    {
        Press('3', wxMOD_ALT);
        ASSERT_TRUE(PumpUntil([this] { return Combo().IsShownOnScreen() && HasFocus(Combo()); }));
    }

    void OpenNextSession()
    {
        BrowserTest::OpenNextSession();
        ASSERT_TRUE(PumpUntil([this] { return Combo().IsShownOnScreen(); }));
    }

    ColoursPage& Page() override { return *frame->GetColours(); }
    wxWindow& Fields() override { return *Page().GetFields(); }
    wxColourCombo& Combo() { return *Page().GetCombo(); }
    wxColourPopup& Popup() { return *Page().GetCombo()->GetPopup(); }

    bool IsSet(const wxString& name) { return Get<wxCheckBox>(name).GetValue(); }

    // Types a text in place of the text of the focused field.
    void Type(const std::string& text)
    {
        Press('A', wxMOD_CONTROL);
        for (const char key : text)
            Press(key);
    }

    // Moves the focus to a field by its mnemonic, and enters another number.
    void SetNumber(char mnemonic, const std::string& name, int number)
    {
        GoTo(name, mnemonic);
        Type(std::to_string(number));
        Press(WXK_TAB);
        ASSERT_TRUE(
            PumpUntil([&] { return Get<wxSpinCtrl>(name).GetValue() == number && !HasFocus(Get<wxSpinCtrl>(name)); }));
    }

    void OpenColours()
    {
        // Keep the pointer away from the popup: otherwise the cell below the pointer would become hot at once.
        PointAt(frame->GetScreenPosition());
        GoTo("Combo", 'C');
        Press(WXK_F4);
        ASSERT_TRUE(PumpUntil([this] { return Combo().IsPopupShown() && Popup().IsShownOnScreen(); }));
    }

    void PointAtCell(int cell)
    {
        wxRect rect;
        ASSERT_TRUE(Popup().GetCellRect(cell, rect));
        PointAt(Popup().ClientToScreen(CentreOf(rect)));
    }

    void ChooseColour(int cell)
    {
        OpenColours();
        PointAtCell(cell);
        Click(wxGetMousePosition());
        ASSERT_TRUE(PumpUntil([this] { return !Combo().IsPopupShown(); }));
    }

    Strings Events()
    {
        Strings lines;
        const wxDataViewListCtrl& events = *Page().GetEvents();
        for (int row = 0; row < events.GetItemCount(); ++row) {
            wxVariant colour;
            events.GetStore()->GetValueByRow(colour, static_cast<unsigned>(row), 1);
            wxDataViewIconText text;
            text << colour;
            const wxString name = events.GetTextValue(row, 0);
            lines.emplace_back(text.GetText().empty() ? name : name + " " + text.GetText());
        }
        return lines;
    }

    wxString Preview() { return Get<wxStaticText>("PreviewText").GetLabelText(); }
};

TEST_F(ColoursPageTest, StartsWithTheLibrarysOwnOptions)
{
    EXPECT_EQ(Page().GetColour(), wxColour(0, 0, 255));
    EXPECT_EQ(Popup().GetInitialColour(), wxColour(0, 0, 255));
    EXPECT_EQ(Popup().GetDefaultColour(), wxColour(0, 0, 0));
    EXPECT_FALSE(Popup().GetRefreshCombo());
    EXPECT_TRUE(Combo().HasFlag(wxCB_READONLY));
    EXPECT_EQ(Preview(), "Blue\n#0000FF");
    EXPECT_EQ(Events(), Strings{});
    OpenColours();
    EXPECT_EQ(Popup().GetSize(), wxSize(148, 162));
}

TEST_F(ColoursPageTest, ListsEachEventAsItComes)
{
    OpenColours();
    Strings expected{"wxEVT_COMBOBOX_DROPDOWN"};
    EXPECT_EQ(Events(), expected);
    PointAtCell(kDarkRedCell);
    expected.emplace_back("wxEVT_COLOURPICKER_CURRENT_CHANGED Dark red #8B0000");
    EXPECT_TRUE(PumpUntil([&] { return Events() == expected; }));
    EXPECT_EQ(Preview(), "Dark red\n#8B0000");
    PointAtCell(kIndigoCell);
    expected.emplace_back("wxEVT_COLOURPICKER_CURRENT_CHANGED Indigo #4B0082");
    EXPECT_TRUE(PumpUntil([&] { return Events() == expected; }));
    Click(wxGetMousePosition());
    expected.emplace_back("wxEVT_COLOURPICKER_CHANGED Indigo #4B0082");
    EXPECT_TRUE(PumpUntil([&] { return Events() == expected; })) << testing::PrintToString(Events());
}

TEST_F(ColoursPageTest, AppliesWhatIsChosen)
{
    ChooseColour(kDarkRedCell);
    EXPECT_EQ(Page().GetColour(), kDarkRed);
    EXPECT_EQ(Preview(), "Dark red\n#8B0000");
    EXPECT_EQ(Get<wxWindow>("Preview").GetBackgroundColour(), kDarkRed);
    EXPECT_EQ(Get<wxWindow>("PreviewText").GetForegroundColour(), wxColour(255, 255, 255));
    ChooseColour(kYellowCell);
    EXPECT_EQ(Get<wxWindow>("Preview").GetBackgroundColour(), wxColour(255, 255, 0));
    EXPECT_EQ(Get<wxWindow>("PreviewText").GetForegroundColour(), wxColour(0, 0, 0));
}

TEST_F(ColoursPageTest, EscapeKeepsTheColourInEffect)
{
    OpenColours();
    PointAtCell(kDarkRedCell);
    ASSERT_TRUE(PumpUntil([&] { return Preview() == "Dark red\n#8B0000"; }));
    Press(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return Events().back() == "wxEVT_COLOURPICKER_DIALOG_CANCELLED Blue #0000FF"; }));
    EXPECT_EQ(Preview(), "Blue\n#0000FF");
    EXPECT_EQ(Page().GetColour(), wxColour(0, 0, 255));
}

TEST_F(ColoursPageTest, AClickBesideThePopupCancels)
{
    OpenColours();
    PointAtCell(kDarkRedCell);
    ASSERT_TRUE(PumpUntil([&] { return Preview() == "Dark red\n#8B0000"; }));
    Click(CentreOf(WindowRect(Get<wxWindow>("Preview"))));
    const Strings expected{"wxEVT_COMBOBOX_DROPDOWN", "wxEVT_COLOURPICKER_CURRENT_CHANGED Dark red #8B0000",
                           "wxEVT_COLOURPICKER_DIALOG_CANCELLED Blue #0000FF", "wxEVT_COMBOBOX_CLOSEUP"};
    EXPECT_TRUE(PumpUntil([&] { return Events() == expected; })) << testing::PrintToString(Events());
    EXPECT_EQ(Page().GetColour(), wxColour(0, 0, 255));
}

TEST_F(ColoursPageTest, ClearEmptiesTheList)
{
    ChooseColour(kDarkRedCell);
    ASSERT_FALSE(Events().empty());
    Press('E', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return Events().empty(); }));
}

TEST_F(ColoursPageTest, TheListForgetsWhatIsOld)
{
    OpenColours();
    PointAtCell(kDarkRedCell);
    ASSERT_TRUE(PumpUntil([&] { return Events().size() == 2; }));
    // The list keeps only the latest 500 events. It already has two, and this loop adds the other 498.
    for (int i = 0; i < 249; ++i) {
        Popup().ChangeSelection(0);
        Popup().ChangeSelection(kIndigoCell);
    }
    const auto all = Events();
    EXPECT_EQ(all.size(), 500u);
    EXPECT_EQ(all.front(), "wxEVT_COMBOBOX_DROPDOWN");
    EXPECT_EQ(all.back(), "wxEVT_COLOURPICKER_CURRENT_CHANGED Indigo #4B0082");

    Popup().ChangeSelection(kDarkRedCell);
    const auto latest = Events();
    EXPECT_EQ(latest.size(), 500u);
    EXPECT_EQ(latest.front(), all[1]);
    EXPECT_NE(latest.back(), all.back());
}

TEST_F(ColoursPageTest, TheBoxesAreLeftOutOrHaveOtherTexts)
{
    Press('A', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !IsSet("HasAutomatic"); }));
    EXPECT_EQ(Popup().GetRow(CELL_AUTOMATIC), -1);
    EXPECT_EQ(Popup().GetRow(CELL_MORE_COLOURS), CELL_MORE_COLOURS);
    EXPECT_FALSE(Get<wxTextCtrl>("Automatic").IsEnabled());
    Press('M', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !IsSet("HasMoreColours"); }));
    EXPECT_EQ(Popup().GetRow(CELL_MORE_COLOURS), -1);
    OpenColours();
    EXPECT_EQ(Popup().GetSize(), wxSize(148, 94)) << "five rows of eight cells";
    Press(WXK_ESCAPE);

    Press('M', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return IsSet("HasMoreColours"); }));
    GoTo("MoreColours", WXK_TAB, wxMOD_NONE);
    Type("mix");
    ASSERT_TRUE(PumpUntil([&] { return Get<wxTextCtrl>("MoreColours").GetValue() == "mix"; }));
    OpenColours();
    Press(WXK_UP);  // from no cell to the last one
    EXPECT_EQ(Popup().GetStringValue(), "mix");
}

TEST_F(ColoursPageTest, TheDefaultColourIsWhatAutomaticGives)
{
    auto& field = Get<wxColourCombo>("Default");
    GoTo("Default", 'D');
    Press(WXK_F4);
    ASSERT_TRUE(PumpUntil([&] { return field.GetPopup()->IsShownOnScreen(); }));
    // The keys go to "More Colours...", then to black, then to dark red.
    for (const int key : {WXK_DOWN, WXK_DOWN, WXK_DOWN, WXK_RETURN})
        Press(key);
    EXPECT_TRUE(PumpUntil([&] { return field.GetColour() == kDarkRed; }));
    EXPECT_EQ(Popup().GetDefaultColour(), kDarkRed);
    ChooseColour(CELL_AUTOMATIC);
    EXPECT_EQ(Page().GetColour(), kDarkRed);
    EXPECT_EQ(Events().back(), "wxEVT_COLOURPICKER_CHANGED Dark red #8B0000");
}

TEST_F(ColoursPageTest, TheCellsCanBeOtherwise)
{
    Press('A', wxMOD_ALT);
    Press('M', wxMOD_ALT);
    SetNumber('U', "Columns", 10);
    SetNumber('S', "CellSize", 20);
    OpenColours();
    EXPECT_EQ(Popup().GetSize(), wxSize(204, 84));
    EXPECT_EQ(Popup().GetRow(39), 3);
    Press(WXK_ESCAPE);
    SetNumber('G', "Margin", 8);
    OpenColours();
    EXPECT_EQ(Popup().GetSize(), wxSize(246, 108)) << "a margin of 8 needs cells of 23";
}

TEST_F(ColoursPageTest, ThereIsAFieldToTypeInUnlessItIsReadOnly)
{
    Press('Y', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !Combo().HasFlag(wxCB_READONLY); }));
    EXPECT_TRUE(Combo().GetTextCtrl());
    ChooseColour(kIndigoCell);
    EXPECT_EQ(Page().GetColour(), kIndigo);
}

TEST_F(ColoursPageTest, TheOtherOptionsReachThePopup)
{
    struct Inside : wxColourPopup
    {
        static wxWindow* CentreOf(const wxColourPopup& popup) { return popup.*(&Inside::m_pCenterOn); }
    };
    EXPECT_EQ(Inside::CentreOf(Popup()), frame);
    Press('R', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return Popup().GetRefreshCombo(); }));
    Press('W', wxMOD_ALT);
    EXPECT_TRUE(PumpUntil([&] { return !Inside::CentreOf(Popup()); }));
}

TEST_F(ColoursPageTest, TheAnimationTakesItsTimeOrIsOff)
{
    GoTo("Animate", 'N');
    Press('N', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return IsSet("Animate"); }));
    GoTo("Duration", WXK_TAB, wxMOD_NONE);
    Type("1500");
    Press(WXK_TAB);
    ASSERT_TRUE(PumpUntil([&] { return Get<wxSpinCtrl>("Duration").GetValue() == 1500; }));
    const auto slow = Clock::now();
    OpenColours();
    EXPECT_GE(Clock::now() - slow, std::chrono::milliseconds(1500));
    Press(WXK_ESCAPE);
    Press('N', wxMOD_ALT);
    ASSERT_TRUE(PumpUntil([&] { return !IsSet("Animate"); }));
    EXPECT_FALSE(Get<wxSpinCtrl>("Duration").IsEnabled());
    GoTo("Combo", 'C');
    Press(WXK_F4);
    ASSERT_TRUE(PumpUntil([&] { return Combo().GetPopupWindowState() != wxComboCtrl::Hidden; }));
    EXPECT_EQ(Combo().GetPopupWindowState(), wxComboCtrl::Visible);
}

TEST_F(ColoursPageTest, TabGoesFromTheTopToTheBottom)
{
    ExpectTabOrder({"Events", "Clear", "HasAutomatic", "Automatic", "HasMoreColours", "MoreColours", "Default",
                    "Columns", "CellSize", "Margin", "ReadOnly", "RefreshCombo", "CenterOn", "Animate", "Duration",
                    "Combo"});
}

TEST_F(ColoursPageTest, EverythingComesBack)
{
    ChooseColour(kDarkRedCell);
    for (const char mnemonic : {'A', 'Y', 'R', 'N', 'W'})
        Press(mnemonic, wxMOD_ALT);
    SetNumber('U', "Columns", 5);
    SetNumber('S', "CellSize", 30);
    SetNumber('G', "Margin", 3);
    GoTo("HasMoreColours", 'M');
    Press('M', wxMOD_ALT);
    GoTo("MoreColours", WXK_TAB, wxMOD_NONE);
    Press('x');
    PumpPending();
    OpenNextSession();
    EXPECT_EQ(Page().GetColour(), kDarkRed);
    EXPECT_EQ(Popup().GetInitialColour(), kDarkRed);
    EXPECT_EQ(Preview(), "Dark red\n#8B0000");
    EXPECT_EQ(Popup().GetRow(CELL_AUTOMATIC), -1);
    EXPECT_FALSE(Combo().HasFlag(wxCB_READONLY));
    EXPECT_TRUE(Popup().GetRefreshCombo());
    EXPECT_FALSE(IsSet("Animate"));
    EXPECT_FALSE(IsSet("CenterOn"));
    EXPECT_EQ(Get<wxSpinCtrl>("Columns").GetValue(), 5);
    EXPECT_EQ(Get<wxSpinCtrl>("CellSize").GetValue(), 30);
    EXPECT_EQ(Get<wxSpinCtrl>("Margin").GetValue(), 3);
    EXPECT_EQ(Get<wxTextCtrl>("MoreColours").GetValue(), "x");
    EXPECT_EQ(Events(), Strings{});
}

TEST_F(ColoursPageTest, NonsenseInTheSettingsDoesNoHarm)
{
    Close();
    WriteFile(
        settings / "ui_config/colours.ini",
        "[Combo]\nHasAutomatic=maybe\nReadOnly=\nColour=blue\nDefault=#12345\nColumns=0\nCellSize=1e9\nMargin=9\n");
    Open("");
    EXPECT_EQ(Page().GetColour(), wxColour(0, 0, 255));
    EXPECT_EQ(Popup().GetDefaultColour(), wxColour(0, 0, 0));
    EXPECT_TRUE(IsSet("HasAutomatic"));
    EXPECT_TRUE(IsSet("ReadOnly"));
    EXPECT_EQ(Get<wxSpinCtrl>("Columns").GetValue(), 8);
    EXPECT_EQ(Get<wxSpinCtrl>("CellSize").GetValue(), 18);
    EXPECT_EQ(Get<wxSpinCtrl>("Margin").GetValue(), 2);
}

TEST_F(ColoursPageTest, TheWindowClosesWithTheColoursOpen)
{
    OpenColours();
    PointAtCell(kIndigoCell);
    OpenNextSession();
    EXPECT_EQ(Page().GetColour(), wxColour(0, 0, 255));
}

TEST_F(ColoursPageTest, NeedsNoScrollingInAWindowOf1024By600)
{
    Resize(wxSize(1024, 600));
    for (const char* name : {"Combo", "Clear", "Events", "Margin", "Default", "Duration"})
        EXPECT_TRUE(WindowRect(Page()).Contains(WindowRect(Get<wxWindow>(name)))) << name;
}

TEST_F(ColoursPageTest, FitsIntoASmallWindow)
{
    for (const wxSize size : {wxSize(800, 600), wxSize(632, 480)}) {
        Resize(size);
        for (const wxWindow* part : Page().GetChildren())
            EXPECT_LE(part->GetRect().GetRight(), Page().GetClientSize().x) << part->GetName();
        GoTo("Combo", 'C');
        GoTo("Animate", 'N');
        const auto& last = Get<wxWindow>("Animate");
        EXPECT_TRUE(PumpUntil([&] { return WindowRect(Page()).Contains(WindowRect(last)); }));
    }
}

// Makes the texts of all windows twice as large as usual while the object exists.
class LargeTexts
{
public:
    LargeTexts() { SetResolution(2 * m_before); }
    ~LargeTexts() { SetResolution(m_before); }
    LargeTexts(const LargeTexts&) = delete;
    LargeTexts& operator=(const LargeTexts&) = delete;

private:
    static int Resolution()
    {
        int resolution = 0;
        g_object_get(gtk_settings_get_default(), "gtk-xft-dpi", &resolution, nullptr);
        return resolution > 0 ? resolution : 96 * 1024;
    }

    static void SetResolution(int resolution)
    {
        g_object_set(gtk_settings_get_default(), "gtk-xft-dpi", resolution, nullptr);
    }

    const int m_before = Resolution();
};

TEST_F(ColoursPageTest, LargeTextsAreNotCut)
{
    Close();
    const LargeTexts large;
    Open("");
    ShowPage();
    const wxDataViewListCtrl& events = *Page().GetEvents();
    const int longest = events.GetTextExtent("wxEVT_COLOURPICKER_DIALOG_CANCELLED").x;
    EXPECT_GT(longest, events.FromDIP(336)) << "the texts are not large";
    EXPECT_GE(events.GetColumn(0)->GetWidth(), longest);
    EXPECT_GE(events.GetColumn(1)->GetWidth(), events.GetTextExtent("Orange #FF6820").x + events.FromDIP(24));
    const auto& clear = Get<wxWindow>("Clear");
    EXPECT_GE(clear.GetSize().x, clear.GetTextExtent("Clear").x + clear.FromDIP(16));
    EXPECT_GE(clear.GetSize().y, clear.GetCharHeight());
    const auto& automatic = Get<wxTextCtrl>("Automatic");
    EXPECT_GE(automatic.GetSize().x, automatic.GetTextExtent("Its own text").x + automatic.FromDIP(16));
}

}  // namespace
