// "More Colours..." opens the toolkit's colour dialog, which a hook answers.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <gtk/gtk.h>
#include <wx/colordlg.h>
#include <wx/modalhook.h>
#include <wx/panel.h>

#include <tests/colour/combo/combo_with_listener.h>

namespace {

constexpr int M = CELL_MORE_COLOURS;

std::vector<int> g_centred;

}  // namespace

// Replaces the toolkit's function, which leaves the position of a native GTK dialog to the window manager. Records the
// directions in which a colour dialog is centred.
void wxTopLevelWindowBase::DoCentre(int directions)
{
    if (dynamic_cast<wxColourDialog*>(this))
        g_centred.push_back(directions);
}

namespace {

// Answers the colour dialog, and records the data with which the dialog opens.
class Answer : public wxModalDialogHook
{
public:
    Answer(int answer, const wxColour& colour) : m_answer(answer), m_colour(colour) { Register(); }

    std::function<void()> during;
    std::function<void(GtkWidget* dialog)> duringDialog;
    int asked = 0;
    wxColour proposed;
    bool full = false;
    wxWindow* parent = nullptr;
    std::vector<int> centred;  // The arguments of the DoCentre() calls before the dialog opens.

protected:
    int Enter(wxDialog* shown) override
    {
        auto* const dialog = dynamic_cast<wxColourDialog*>(shown);
        EXPECT_TRUE(dialog);
        ++asked;
        proposed = dialog->GetColourData().GetColour();
        full = dialog->GetColourData().GetChooseFull();
        parent = dialog->GetParent();
        centred = std::exchange(g_centred, {});
        if (during)
            during();
        if (duringDialog)
            duringDialog(dialog->GetHandle());
        // Set the colour of GTK's widget: the dialog reads its colour from there after this function returns.
        const GdkRGBA rgba{m_colour.Red() / 255.0, m_colour.Green() / 255.0, m_colour.Blue() / 255.0, 1};
        G_GNUC_BEGIN_IGNORE_DEPRECATIONS
        auto* const selection =
            gtk_color_selection_dialog_get_color_selection(GTK_COLOR_SELECTION_DIALOG(dialog->GetHandle()));
        gtk_color_selection_set_current_rgba(GTK_COLOR_SELECTION(selection), &rgba);
        G_GNUC_END_IGNORE_DEPRECATIONS
        return m_answer;
    }

private:
    const int m_answer;
    const wxColour m_colour;
};

class MoreColours : public testing::Test, protected ComboWithListener
{
protected:
    MoreColours() : ComboWithListener(wxColour(1, 2, 3)) {}
};

TEST_F(MoreColours, GivesTheColourOfTheDialog)
{
    Answer answer(wxID_OK, wxColour(10, 200, 30));
    bool shown = true;
    std::vector<bool> hidden;
    ColourCalls calls;
    answer.during = [&] {
        shown = on.combo->IsPopupShown();
        hidden = on.combo->hidden;
        calls = listener.Take();
    };
    Select(M, true);
    EXPECT_EQ(answer.asked, 1);
    EXPECT_EQ(answer.proposed, wxColour(1, 2, 3));
    EXPECT_TRUE(answer.full);
    EXPECT_EQ(answer.parent, on.frame) << "the parent is the top-level window of the combo";
    EXPECT_FALSE(shown) << "the popup closes before the dialog opens";
    EXPECT_EQ(hidden, std::vector<bool>{false});
    EXPECT_EQ(calls, (ColourCalls{"popup", "change #010203"}));
    EXPECT_EQ(listener.Take(), ColourCalls{"end #0AC81E"});
    EXPECT_EQ(on.popup->m_crColour, wxColour(10, 200, 30));
    EXPECT_EQ(on.popup->m_crInitialColour, wxColour(10, 200, 30));
    EXPECT_EQ(on.popup->m_nChosenColourSel, M);
    EXPECT_FALSE(on.popup->m_bInternalHide);
    EXPECT_EQ(on.combo->hidden.size(), 1u) << "the popup is hidden only once";
}

// When the dialog is cancelled, OnColourSelEnd() is called with the colour in effect, but the event reports a cancel.
TEST_F(MoreColours, SendsAnEventOfItsCancelAndNoneOfAChoice)
{
    const Answer answer(wxID_CANCEL, wxColour(10, 200, 30));
    std::vector<std::string> events;
    const auto note = [&events](const char* name) {
        return [&events, name](wxColourPickerEvent& event) {
            events.push_back(name + event.GetColour().GetAsString(wxC2S_HTML_SYNTAX).ToStdString());
        };
    };
    on.combo->Bind(wxEVT_COLOURPICKER_CHANGED, note("changed "));
    on.combo->Bind(wxEVT_COLOURPICKER_DIALOG_CANCELLED, note("cancelled "));
    Select(M, true);
    EXPECT_EQ(std::exchange(events, {}), std::vector<std::string>{"cancelled #010203"});
    EXPECT_EQ(listener.Take().back(), "end #010203");

    Select(16, true);
    EXPECT_EQ(events, std::vector<std::string>{"changed #FF0000"}) << "the earlier cancel has no effect";
}

// A cancelled dialog ends the selection with the colour in effect.
TEST_F(MoreColours, KeepsTheColourInEffectWhenTheDialogIsCancelled)
{
    Answer answer(wxID_CANCEL, wxColour(10, 200, 30));
    Select(M, true);
    EXPECT_EQ(answer.asked, 1);
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #010203", "end #010203"}));
    EXPECT_EQ(on.popup->m_crColour, wxColour(1, 2, 3));
    EXPECT_EQ(on.popup->m_crInitialColour, wxColour(1, 2, 3));
    EXPECT_EQ(on.popup->m_nChosenColourSel, M);
}

TEST_F(MoreColours, GoesBackToTheColourInEffectWhenTheDialogIsCancelled)
{
    Answer answer(wxID_CANCEL, wxColour(10, 200, 30));
    on.popup->ChangeSelection(16);
    on.popup->DoShowColorDlg();
    EXPECT_EQ(on.popup->m_crColour, wxColour(1, 2, 3));
    EXPECT_EQ(on.popup->m_crInitialColour, wxColour(1, 2, 3));
    EXPECT_EQ(listener.Take(), ColourCalls{"change #FF0000"});
}

TEST_F(MoreColours, AsksNothingWhenCancelledOrWhenAnotherCellIsHot)
{
    Answer answer(wxID_OK, *wxRED);
    Select(M, false);
    EXPECT_EQ(listener.Take(), (ColourCalls{"popup", "change #010203", "cancel #010203"}));
    Open();
    on.popup->ChangeSelection(M);
    on.popup->ChangeSelection(CELL_AUTOMATIC);
    on.popup->EndSelection(true);
    EXPECT_EQ(answer.asked, 0);
}

TEST_F(MoreColours, GivesTheDialogTheWindowToCentreOnForItsParent)
{
    auto* const other = new wxFrame(nullptr, wxID_ANY, "other", wxPoint(600, 400), wxSize(620, 560));
    ASSERT_TRUE(ShowAndSettle(other));
    on.popup->SetCenterOn(other);
    Answer answer(wxID_OK, *wxRED);
    Select(M, true);
    EXPECT_EQ(answer.parent, other);
    EXPECT_EQ(answer.centred, std::vector<int>{wxBOTH});
    EXPECT_EQ(on.popup->m_crInitialColour, *wxRED);

    on.popup->SetCenterOn(nullptr);
    Select(M, true);
    EXPECT_EQ(answer.parent, on.frame);
    EXPECT_TRUE(answer.centred.empty());
    other->Destroy();
}

TEST_F(MoreColours, CentresTheDialogOnAPartOfAWindow)
{
    auto* const panel = new wxPanel(on.frame, wxID_ANY, wxPoint(40, 60), wxSize(100, 80));
    on.popup->SetCenterOn(panel);
    wxPoint middle;
    Answer answer(wxID_CANCEL, *wxRED);
    answer.duringDialog = [&](GtkWidget* dialog) {
        int x = 0;
        int y = 0;
        gtk_window_get_position(GTK_WINDOW(dialog), &x, &y);
        GtkRequisition size;
        gtk_widget_get_preferred_size(dialog, nullptr, &size);
        middle = wxPoint(x + size.width / 2, y + size.height / 2);
    };
    on.popup->DoShowColorDlg();
    const wxRect screen = panel->GetScreenRect();
    EXPECT_EQ(answer.centred, std::vector<int>{wxBOTH});
    EXPECT_NEAR(middle.x, screen.x + 50, 1);
    EXPECT_NEAR(middle.y, screen.y + 40, 1);
}

TEST_F(MoreColours, ProposesTheColourChosenLast)
{
    {
        Answer answer(wxID_OK, wxColour(10, 200, 30));
        Select(M, true);
    }
    Answer answer(wxID_CANCEL, *wxRED);
    Select(M, true);
    EXPECT_EQ(answer.proposed, wxColour(10, 200, 30));
}

TEST_F(MoreColours, CanBeAskedForAtAnyTime)
{
    Answer answer(wxID_OK, *wxRED);
    on.popup->DoShowColorDlg();
    EXPECT_EQ(on.popup->m_crColour, *wxRED);
    EXPECT_EQ(on.popup->m_crInitialColour, *wxRED);
    EXPECT_EQ(listener.Take(), ColourCalls());
}

TEST(MoreColoursAlone, AsksWithoutACombo)
{
    const PopupInFrame popup;
    ColourListener listener(*popup.popup);
    Answer answer(wxID_OK, *wxRED);
    popup->ChangeSelection(M);
    popup->EndSelection(true);
    EXPECT_EQ(answer.parent, nullptr);
    EXPECT_EQ(listener.Take(), (ColourCalls{"change #000000", "end #FF0000"}));
}

}  // namespace
