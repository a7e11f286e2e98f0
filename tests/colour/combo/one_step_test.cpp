// A colour combo that creates its own popup: construction, the colour that the host sets, and events.

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <wx/clrpicker.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <tests/colour/colour_listener.h>
#include <tests/colour/screen.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

namespace {

using Notes = std::vector<std::string>;

std::string Html(const wxColour& colour)
{
    return colour.IsOk() ? colour.GetAsString(wxC2S_HTML_SYNTAX).ToStdString() : "none";
}

OwnedWindow<wxFrame> MakeFrame()
{
    return OwnedWindow(new wxFrame(nullptr, wxID_ANY, "combo", wxPoint(200, 150), wxSize(500, 400)));
}

// A combo in a window on the screen. One call of its constructor creates the combo and its popup. After Watch(), the
// events that reach the frame are recorded.
struct OneStep
{
    explicit OneStep(const wxColour& colour = *wxBLUE, long style = wxCB_READONLY)
        : frame(MakeFrame()), panel(new wxPanel(frame)),
          combo(new wxColourCombo(panel, 1234, colour, wxPoint(20, 60), wxSize(150, -1), style))
    {
        combo->EnablePopupAnimation(false);
        EXPECT_TRUE(ShowAndSettle(frame));
    }

    int FaceOnScreen() const { return PixelOfScreen(combo->ClientToScreen(wxPoint(30, 12))); }

    // Returns the chosen cell of the popup. Only a class derived from wxColourPopup can read m_nChosenColourSel.
    int Chosen() const
    {
        struct Seen : wxColourPopup
        {
            static int Of(const wxColourPopup& popup) { return popup.*(&Seen::m_nChosenColourSel); }
        };
        return Seen::Of(*combo->GetPopup());
    }

    void Watch()
    {
        const auto note = [this](const char* name) {
            return [this, name](wxColourPickerEvent& event) {
                EXPECT_EQ(event.GetId(), 1234);
                EXPECT_EQ(event.GetEventObject(), combo.get());
                notes.push_back(name + Html(event.GetColour()));
            };
        };
        // Bind to the frame, as a host with several controls does.
        frame->Bind(wxEVT_COLOURPICKER_CURRENT_CHANGED, note("current "));
        frame->Bind(wxEVT_COLOURPICKER_CHANGED, note("changed "));
        frame->Bind(wxEVT_COLOURPICKER_DIALOG_CANCELLED, note("cancelled "));
        frame->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { notes.push_back("text"); });
        frame->Bind(wxEVT_COMBOBOX_DROPDOWN, [this](wxCommandEvent&) { notes.push_back("dropdown"); });
        frame->Bind(wxEVT_COMBOBOX_CLOSEUP, [this](wxCommandEvent&) { notes.push_back("closeup"); });
    }

    Notes Take() { return std::exchange(notes, {}); }

    void Press(int key) { user.Char(key); }

    void Focus()
    {
        combo->SetFocus();
        EXPECT_TRUE(PumpUntil([&] { return combo->HasFocus(); }));
    }

    void Open()
    {
        Focus();
        Press(WXK_F4);
        ASSERT_TRUE(PumpUntil([&] { return combo->IsPopupShown(); }));
        PumpPending();
    }

    bool Closes()
    {
        return PumpUntil([&] { return combo->GetPopupWindowState() == wxComboCtrl::Hidden; });
    }

    void ClickOutside()
    {
        user.MouseMove(panel->ClientToScreen(wxPoint(400, 300)));
        user.MouseClick();
    }

    Notes notes;
    wxUIActionSimulator user;
    OwnedWindow<wxFrame> frame;
    wxPanel* panel;
    wxWeakRef<wxColourCombo> combo;
};

// --- Construction ----------------------------------------------------------------------------------------------------

TEST(ColourComboInOneStep, HasItsPopupAndItsColour)
{
    const OneStep on(wxColour(255, 0, 0));
    EXPECT_EQ(on.combo->GetColour(), *wxRED);
    ASSERT_NE(on.combo->GetPopup(), nullptr);
    EXPECT_EQ(static_cast<wxComboPopup*>(on.combo->GetPopup()), on.combo->GetPopupControl());
    EXPECT_EQ(on.combo->GetId(), 1234);
    EXPECT_EQ(on.combo->GetTextCtrl(), nullptr);
    EXPECT_EQ(on.combo->GetValue(), "Red");
    EXPECT_EQ(on.Chosen(), 16);
    EXPECT_TRUE(PumpUntil([&] { return on.FaceOnScreen() == 0xFF0000; }));
}

TEST(ColourComboInOneStep, TakesWhatItIsGiven)
{
    const auto frame = MakeFrame();
    auto* const plain = new wxColourCombo(frame, wxID_ANY);
    EXPECT_EQ(plain->GetColour(), *wxBLACK);
    EXPECT_TRUE(plain->HasFlag(wxCB_READONLY));
    EXPECT_EQ(plain->GetName(), wxString(wxComboBoxNameStr));
    auto* const full = new wxColourCombo(frame, 7, "lime green", wxPoint(10, 20), wxSize(200, 40), wxTE_PROCESS_ENTER,
                                         wxDefaultValidator, "mine");
    EXPECT_EQ(full->GetColour(), wxColour(50, 205, 50));
    EXPECT_NE(full->GetTextCtrl(), nullptr);
    EXPECT_EQ(full->GetRect(), wxRect(10, 20, 200, 40));
    EXPECT_EQ(full->GetName(), "mine");
    auto* const invalid = new wxColourCombo(frame, wxID_ANY, wxColour());
    EXPECT_EQ(invalid->GetColour(), *wxBLACK);
}

TEST(ColourComboInOneStep, MayBeCreatedLater)
{
    const auto frame = MakeFrame();
    auto* const combo = new wxColourCombo;
    EXPECT_EQ(combo->GetPopup(), nullptr);
    EXPECT_FALSE(combo->GetColour().IsOk());
    EXPECT_FALSE(combo->SetColour(*wxRED));
    EXPECT_FALSE(combo->SetAutomaticColour(*wxRED));
    EXPECT_TRUE(combo->Create(frame, 7, *wxRED));
    EXPECT_TRUE(combo->HasFlag(wxCB_READONLY));
    EXPECT_EQ(combo->GetId(), 7);
    EXPECT_EQ(combo->GetColour(), *wxRED);
}

// Without a colour, Create() is the toolkit's function, which makes no popup. The overload with a colour must not take
// these calls.
TEST(ColourComboInOneStep, LeavesTheOldCreateAsItIs)
{
    const auto frame = MakeFrame();
    const std::vector<std::function<bool(wxColourCombo&)>> calls{
        [&](wxColourCombo& combo) { return combo.Create(frame); },
        [&](wxColourCombo& combo) { return combo.Create(frame, wxID_ANY); },
        [&](wxColourCombo& combo) { return combo.Create(frame, wxID_ANY, ""); },
        [&](wxColourCombo& combo) { return combo.Create(frame, wxID_ANY, L""); },
        [&](wxColourCombo& combo) { return combo.Create(frame, wxID_ANY, wxString()); },
        [&](wxColourCombo& combo) { return combo.Create(frame, wxID_ANY, std::string()); },
        [&](wxColourCombo& combo) { return combo.Create(frame, wxID_ANY, wxEmptyString); },
        [&](wxColourCombo& combo) {
            return combo.Create(frame, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "name");
        },
    };
    for (const auto& create : calls) {
        auto* const combo = new wxColourCombo;
        EXPECT_TRUE(create(*combo));
        EXPECT_EQ(combo->GetPopup(), nullptr);
        EXPECT_NE(combo->GetTextCtrl(), nullptr);
        EXPECT_EQ(combo->GetValue(), "");
        auto* const popup = new wxColourPopup;
        combo->SetPopupControl(popup);
        EXPECT_EQ(combo->GetPopup(), popup);
    }
}

TEST(ColourComboInOneStep, HasNoColourWithAnotherPopup)
{
    class Other : public wxPanel, public wxComboPopup
    {
    public:
        bool Create(wxWindow* parent) override { return wxPanel::Create(parent); }
        wxWindow* GetControl() override { return this; }
        wxString GetStringValue() const override { return {}; }
    };
    const OneStep on;
    on.combo->SetPopupControl(new Other);
    EXPECT_EQ(on.combo->GetPopup(), nullptr);
    EXPECT_FALSE(on.combo->GetColour().IsOk());
    EXPECT_FALSE(on.combo->SetColour(*wxRED));
}

// --- The colour that the host sets -----------------------------------------------------------------------------------

TEST(ColourOfTheCombo, IsShownAtOnceWithoutAnEvent)
{
    for (const long style : {long(wxCB_READONLY), 0L}) {
        OneStep on(*wxBLUE, style);
        ColourListener listener(*on.combo->GetPopup());
        on.Watch();
        EXPECT_TRUE(on.combo->SetColour(*wxRED));
        EXPECT_EQ(on.combo->GetColour(), *wxRED);
        EXPECT_EQ(on.combo->GetValue(), "Red");
        EXPECT_EQ(on.Chosen(), 16);
        if (style == wxCB_READONLY) {
            EXPECT_TRUE(PumpUntil([&] { return on.FaceOnScreen() == 0xFF0000; }));
        }

        EXPECT_TRUE(on.combo->SetColour("#123456"));
        EXPECT_EQ(on.Chosen(), CELL_MORE_COLOURS);
        EXPECT_EQ(on.combo->GetValue(), "More Colours...");
        EXPECT_TRUE(on.combo->SetColour(wxString("black")));
        EXPECT_EQ(on.Chosen(), CELL_AUTOMATIC);
        EXPECT_EQ(on.combo->GetValue(), "Automatic");
        EXPECT_TRUE(on.combo->SetColour(wxColour(255, 0, 0)));
        EXPECT_EQ(on.Chosen(), 16) << "Automatic is still marked";
        PumpPending();
        EXPECT_EQ(on.Take(), Notes());
        EXPECT_EQ(listener.Take(), ColourCalls());
        on.combo->GetPopup()->SetColorListener(nullptr);
    }
}

TEST(ColourOfTheCombo, StaysWhereAnInvalidOneIsSet)
{
    const OneStep on(*wxRED);
    EXPECT_FALSE(on.combo->SetColour(wxColour()));
    EXPECT_FALSE(on.combo->SetColour("no colour"));
    EXPECT_FALSE(on.combo->SetAutomaticColour(wxNullColour));
    EXPECT_EQ(on.combo->GetColour(), *wxRED);
    EXPECT_EQ(on.Chosen(), 16);
}

TEST(ColourOfTheCombo, HasTheMarkOfAutomaticWhereItIsThat)
{
    const OneStep on(*wxRED);
    EXPECT_TRUE(on.combo->SetAutomaticColour(*wxRED));
    EXPECT_EQ(on.combo->GetColour(), *wxRED);
    EXPECT_EQ(on.Chosen(), CELL_AUTOMATIC);
    EXPECT_EQ(on.combo->GetPopup()->GetDefaultColour(), *wxRED);
    EXPECT_TRUE(on.combo->SetAutomaticColour(*wxBLUE));
    EXPECT_EQ(on.combo->GetColour(), *wxRED);
    EXPECT_EQ(on.Chosen(), 16);
    on.combo->GetPopup()->SetAutomaticText("");
    EXPECT_TRUE(on.combo->SetColour(*wxBLUE));
    EXPECT_EQ(on.Chosen(), 13) << "a box that is absent has no mark";
}

TEST(ColourOfTheCombo, CanBeSetWhileThePopupIsOpen)
{
    for (const long style : {long(wxCB_READONLY), 0L}) {
        for (const bool byEscape : {true, false}) {
            OneStep on(*wxBLUE, style);
            on.Open();
            on.combo->GetPopup()->ChangeSelection(18);
            on.combo->SetColour(*wxRED);
            EXPECT_EQ(on.Chosen(), 16);
            EXPECT_TRUE(on.combo->IsPopupShown());
            on.Watch();
            if (byEscape)
                on.Press(WXK_ESCAPE);
            else
                on.ClickOutside();
            EXPECT_TRUE(on.Closes());
            EXPECT_TRUE(PumpUntil(
                [&] { return std::find(on.notes.begin(), on.notes.end(), "cancelled #FF0000") != on.notes.end(); }));
            EXPECT_EQ(on.combo->GetColour(), *wxRED);
            EXPECT_EQ(on.combo->GetValue(), "Red");
        }
    }
}

TEST(ColourOfTheCombo, TakesThePlaceOfTheChosenOneInItsEvent)
{
    for (const long style : {long(wxCB_READONLY), 0L}) {
        OneStep on(*wxBLUE, style);
        on.combo->Bind(wxEVT_COLOURPICKER_CHANGED, [&](wxColourPickerEvent&) { on.combo->SetColour(*wxGREEN); });
        on.Open();
        on.combo->GetPopup()->ChangeSelection(16);
        on.Press(WXK_RETURN);
        EXPECT_TRUE(on.Closes());
        EXPECT_EQ(on.combo->GetColour(), *wxGREEN);
        EXPECT_EQ(on.combo->GetValue(), "Bright green");
        EXPECT_EQ(on.Chosen(), 27);
    }
}

TEST(ColourOfTheCombo, IsRepaintedWhenThePopupsInitialColourIsSet)
{
    const OneStep on(*wxBLUE);
    EXPECT_TRUE(PumpUntil([&] { return on.FaceOnScreen() == 0x0000FF; }));
    on.combo->GetPopup()->SetInitialColour(*wxRED);
    EXPECT_TRUE(PumpUntil([&] { return on.FaceOnScreen() == 0xFF0000; }));
}

// --- Events ----------------------------------------------------------------------------------------------------------

TEST(ColourComboEvents, TellOfEachHotCellAndOfTheChoice)
{
    OneStep on(*wxBLUE);
    on.Watch();
    on.Open();
    on.Press(WXK_UP);
    on.Press(WXK_RIGHT);
    on.Press(WXK_DOWN);
    on.Press(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return on.notes.size() >= 5; }));
    EXPECT_EQ(on.Take(),
              (Notes{"dropdown", "current #000000", "current #000000", "current #8B0000", "changed #8B0000"}));
    EXPECT_EQ(on.combo->GetColour(), wxColour(139, 0, 0));
}

TEST(ColourComboEvents, TellOfACancel)
{
    OneStep on(*wxBLUE);
    on.Watch();
    on.Open();
    on.Press(WXK_UP);
    on.Press(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return on.notes.size() >= 3; }));
    EXPECT_EQ(on.Take(), (Notes{"dropdown", "current #000000", "cancelled #0000FF"}));

    on.Open();
    on.ClickOutside();
    EXPECT_TRUE(PumpUntil([&] { return on.notes.size() >= 3; }));
    EXPECT_EQ(on.Take(), (Notes{"dropdown", "cancelled #0000FF", "closeup"}));
}

TEST(ColourComboEvents, ComeBesideTheListenersCalls)
{
    OneStep on(*wxBLUE);
    ColourListener listener;
    listener.during = [&](const std::string& call) { on.notes.push_back("listener " + call); };
    on.combo->GetPopup()->SetColorListener(&listener);
    on.Watch();
    on.Open();
    on.Press(WXK_UP);
    on.Press(WXK_RETURN);
    EXPECT_TRUE(PumpUntil([&] { return on.notes.size() >= 6; }));
    EXPECT_EQ(on.Take(), (Notes{"dropdown", "listener popup", "listener change", "current #000000", "listener end",
                                "changed #000000"}));
    on.Open();
    on.Press(WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return on.notes.size() >= 4; }));
    EXPECT_EQ(on.Take(), (Notes{"dropdown", "listener popup", "listener cancel", "cancelled #000000"}));
    on.combo->GetPopup()->SetColorListener(nullptr);
}

// A value that the program sets sends no event, because the user has chosen nothing.
TEST(ColourComboEvents, DoNotComeForValuesThatAreSetWhileThePopupIsClosed)
{
    OneStep on(*wxBLUE);
    on.Watch();
    on.combo->SetValue("Red");
    on.combo->ChangeValue("Lime");
    EXPECT_EQ(on.Take(), Notes());
}

struct Removal
{
    const char* name;
    std::function<void(OneStep&)> remove;
};

class ColourComboRemovedInAnEvent
    : public testing::TestWithParam<std::pair<Removal, const wxEventTypeTag<wxColourPickerEvent>*>>
{
};

TEST_P(ColourComboRemovedInAnEvent, LeavesNothingBehind)
{
    const auto& [removal, type] = GetParam();
    OneStep on;
    const wxWeakRef<wxColourPopup> popup(on.combo->GetPopup());
    int times = 0;
    on.combo->Bind(*type, [&, &remove = removal.remove](wxColourPickerEvent&) {
        if (++times == 1)
            remove(on);
    });
    on.Open();
    on.Press(WXK_UP);
    if (*type != wxEVT_COLOURPICKER_CURRENT_CHANGED)
        on.Press(*type == wxEVT_COLOURPICKER_CHANGED ? WXK_RETURN : WXK_ESCAPE);
    EXPECT_TRUE(PumpUntil([&] { return times > 0 && !popup; }));
}

std::vector<std::pair<Removal, const wxEventTypeTag<wxColourPickerEvent>*>> RemovalsInEvents()
{
    const Removal removals[] = {
        {"Destroyed", [](OneStep& on) { on.combo->Destroy(); }},
        {"DestroyedWithItsFrame", [](OneStep& on) { on.frame->Destroy(); }},
        {"WithAnotherPopup", [](OneStep& on) { on.combo->SetPopupControl(new wxColourPopup); }},
    };
    std::vector<std::pair<Removal, const wxEventTypeTag<wxColourPickerEvent>*>> all;
    for (const Removal& removal : removals) {
        for (const auto* const type :
             {&wxEVT_COLOURPICKER_CURRENT_CHANGED, &wxEVT_COLOURPICKER_CHANGED, &wxEVT_COLOURPICKER_DIALOG_CANCELLED})
            all.emplace_back(removal, type);
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(, ColourComboRemovedInAnEvent, testing::ValuesIn(RemovalsInEvents()), [](const auto& info) {
    const wxEventType type = *info.param.second;
    return std::string(info.param.first.name) + (type == wxEVT_COLOURPICKER_CHANGED           ? "WhenChosen"
                                                 : type == wxEVT_COLOURPICKER_CURRENT_CHANGED ? "WhenHot"
                                                                                              : "WhenCancelled");
});

TEST(ColourComboEvents, DoNotComeFromAControlThatGoes)
{
    OneStep on;
    on.Open();
    on.Watch();
    on.panel->Destroy();
    EXPECT_FALSE(on.combo);
    for (const std::string& note : on.Take())
        EXPECT_NE(note.substr(0, 9), "cancelled") << note;
}

}  // namespace
