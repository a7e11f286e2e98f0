// The context menu of a wxNumberCtrl, and text that the mouse drops onto the control.

#include <fittings/numedit/number_ctrl.h>

#include <gtest/gtest.h>

#include <gtk/gtk.h>
#include <wx/clipbrd.h>
#include <wx/dnd.h>
#include <wx/uiaction.h>
#include <wx/weakref.h>

#include <tests/numedit/control/number_ctrl_dialog.h>
#include <tests/support/gui.h>
#include <tests/support/process/child_process.h>

namespace {

class NumberContextMenu : public testing::Test
{
protected:
    void SetUp() override
    {
        g_signal_connect(screen.number->m_widget, "populate-popup", G_CALLBACK(OnPopup), this);
        screen.Restart("12345");
        screen.number->SetSelection(1, 4);
    }

    // Opens the menu with the mouse, and chooses the command with this mnemonic.
    void Choose(char mnemonic)
    {
        menu = nullptr;
        wxUIActionSimulator user;
        user.MouseMove(screen.Middle());
        user.MouseClick(wxMOUSE_BTN_RIGHT);
        ASSERT_TRUE(PumpUntil([&] { return menu && gtk_widget_get_mapped(menu); }));
        EXPECT_EQ(screen.Text(), L"12345") << "the menu must not take the focus from the number";
        EXPECT_EQ(screen.Selection(), "234");
        user.Char(mnemonic);
        ASSERT_TRUE(PumpUntil([&] { return !menu || !gtk_widget_get_mapped(menu); }));
        PumpPending();
    }

    static void OnPopup(GtkEntry*, GtkWidget* menu, NumberContextMenu* self)
    {
        self->menu = menu;
        g_object_add_weak_pointer(G_OBJECT(menu), reinterpret_cast<void**>(&self->menu));
    }

    void TearDown() override
    {
        g_signal_handlers_disconnect_by_data(screen.number->m_widget, this);
        if (menu)
            g_object_remove_weak_pointer(G_OBJECT(menu), reinterpret_cast<void**>(&menu));
        wxClipboardLocker clipboard;
        wxTheClipboard->Clear();
    }

    NumberCtrlDialog screen{FixedFormat()};
    GtkWidget* menu = nullptr;
};

TEST_F(NumberContextMenu, Cuts)
{
    Choose('t');
    EXPECT_TRUE(PumpUntil([&] { return screen.Text() == L"15"; }));
    EXPECT_EQ(Clipboard(), "234");
    EXPECT_EQ(screen.numbers, std::vector<std::string>{"15"});
}

TEST_F(NumberContextMenu, Copies)
{
    SetClipboard("");
    Choose('c');
    EXPECT_TRUE(PumpUntil([&] { return Clipboard() == "234"; }));
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.textEvents, 0);
}

TEST_F(NumberContextMenu, Deletes)
{
    Choose('d');
    EXPECT_TRUE(PumpUntil([&] { return screen.Text() == L"15"; }));
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(NumberContextMenu, PastesANumber)
{
    SetClipboard(" 67\n");
    Choose('p');
    EXPECT_TRUE(PumpUntil([&] { return screen.Text() == L"1675"; })) << screen.Text();
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(NumberContextMenu, RefusesToPasteAnotherText)
{
    SetClipboard("6x7");
    Choose('p');
    EXPECT_TRUE(PumpUntil([&] { return screen.BellsRung() == 1; }));
    EXPECT_EQ(screen.Text(), L"12345");
    EXPECT_EQ(screen.Selection(), "234");
    EXPECT_EQ(screen.textEvents, 0);
}

// Tests that drag a selected text with the mouse.
class NumberDrop : public testing::Test
{
protected:
    // Drags the selected text of a field from @a grip to @a to, in screen coordinates. If @a moves is true, holds
    // Shift: GTK then moves the text to another field instead of copying it.
    void Drag(wxTextCtrl& from, const wxPoint& grip, const wxPoint& to, bool moves)
    {
        const wxWeakRef<wxTextCtrl> alive(&from);
        // The drop may destroy the controls. Keep their GTK widgets until the drag has ended.
        GtkWidget* const source = GTK_WIDGET(g_object_ref(from.m_widget));
        GtkWidget* const target = GTK_WIDGET(g_object_ref(screen.number->m_widget));
        bool begun = false;
        bool ended = false;
        g_signal_connect_swapped(source, "drag-begin", G_CALLBACK(Note), &begun);
        g_signal_connect_swapped(target, "drag-motion", G_CALLBACK(NoteMotion), &over);
        g_signal_connect_swapped(source, "drag-end", G_CALLBACK(Note), &ended);
        wxUIActionSimulator mouse;
        long first = 0;
        long last = 0;
        from.GetSelection(&first, &last);
        // Repeat the press until a drag begins: no drag begins while GTK still shows the animation at the end of an
        // earlier drag that was refused.
        EXPECT_TRUE(PumpUntil([&] {
            from.SetSelection(first, last);
            mouse.MouseMove(grip);
            PumpPending();
            mouse.MouseDown();
            PumpPending();
            mouse.MouseMove(grip + wxPoint(20, 2));
            if (PumpUntil([&] { return begun; }, 2000))
                return true;
            mouse.MouseUp();
            PumpPending();
            return false;
        }));
        if (moves)
            RunChild({"xdotool", "keydown", "Shift_L"});
        mouse.MouseMove(to - wxPoint(2, 0));
        PumpPending();
        over = false;
        mouse.MouseMove(to);
        EXPECT_TRUE(PumpUntil([&] { return over; }));
        mouse.MouseUp();
        EXPECT_TRUE(PumpUntil([&] { return ended || !alive; }));
        if (moves)
            RunChild({"xdotool", "keyup", "Shift_L"});
        for (bool* const each : {&begun, &over, &ended}) {
            g_signal_handlers_disconnect_by_data(source, each);
            g_signal_handlers_disconnect_by_data(target, each);
        }
        g_object_unref(source);
        g_object_unref(target);
        PumpPending();
    }

    // Puts a text into the other field, and drags the text from there onto the number control.
    void Drop(const wxString& text, bool moves = false)
    {
        ASSERT_NO_FATAL_FAILURE(screen.SelectInFirst(text));
        const wxPoint grip = screen.first->ClientToScreen(wxPoint(14, screen.first->GetSize().y / 2));
        Drag(*screen.first, grip, screen.Middle(), moves);
    }

    // Drags the first digit of the number to the middle of the number control.
    void DragFirstDigit()
    {
        screen.number->SetSelection(0, 1);
        const wxPoint middle = screen.Middle();
        Drag(*screen.number, wxPoint(screen.number->ClientToScreen(wxPoint(12, 0)).x, middle.y), middle, false);
    }

    static void Note(bool* flag) { *flag = true; }
    static int NoteMotion(bool* flag)
    {
        *flag = true;
        return FALSE;
    }

    NumberCtrlDialog screen{FixedFormat()};
    bool over = false;  // True when the mouse has dragged a text over the number.
};

TEST_F(NumberDrop, TakesANumber)
{
    Drop("1,234.50-");
    EXPECT_TRUE(PumpUntil([&] { return screen.number->GetDecimal() == "-1234.50"; })) << screen.number->GetDecimal();
    EXPECT_EQ(screen.first->GetValue(), "1,234.50-");
    EXPECT_EQ(screen.BellsRung(), 0);
}

// The text is dropped between the digits of the formatted number, 1,234.00.
TEST_F(NumberDrop, TakesADigitBetweenGroups)
{
    screen.Restart("1234");
    screen.Leave();
    ASSERT_EQ(screen.Text(), L"1,234.00");
    ASSERT_NO_FATAL_FAILURE(screen.SelectInFirst("7"));
    PangoRectangle place;
    int left = 0;
    auto* const entry = GTK_ENTRY(screen.number->m_widget);
    pango_layout_get_cursor_pos(gtk_entry_get_layout(entry), 3, &place, nullptr);
    gtk_entry_get_layout_offsets(entry, &left, nullptr);
    const int x = screen.number->ClientToScreen(wxPoint(left + PANGO_PIXELS(place.x), 0)).x;
    Drag(*screen.first, screen.first->ClientToScreen(wxPoint(12, screen.first->GetSize().y / 2)),
         wxPoint(x, screen.Middle().y), false);
    EXPECT_TRUE(PumpUntil([&] { return screen.number->GetDecimal() == "12734"; })) << screen.number->GetDecimal();
    EXPECT_EQ(screen.Text(), L"12,734.00");
    EXPECT_EQ(screen.textEvents, 1);
    EXPECT_EQ(screen.BellsRung(), 0);
}

TEST_F(NumberDrop, MovesANumber)
{
    Drop("1,234.50-", true);
    EXPECT_TRUE(PumpUntil([&] { return screen.first->GetValue().empty(); }));
    EXPECT_EQ(screen.number->GetDecimal(), "-1234.50");
}

TEST_F(NumberDrop, RefusesAnotherTextWhole)
{
    for (const bool moves : {false, true}) {
        screen.Restart("7");
        Drop("12abc", moves);
        EXPECT_TRUE(PumpUntil([&] { return screen.BellsRung() == 1; }));
        EXPECT_EQ(screen.number->GetDecimal(), "7");
        EXPECT_EQ(screen.first->GetValue(), "12abc") << "a refused text stays where it was";
        EXPECT_EQ(screen.textEvents, 0);
        EXPECT_TRUE(screen.numbers.empty());
    }
}

TEST_F(NumberDrop, MovesDigitsWithinTheNumber)
{
    screen.Restart("123");
    DragFirstDigit();
    EXPECT_TRUE(PumpUntil([&] { return screen.Text() == L"231"; })) << screen.Text();
    EXPECT_EQ(screen.BellsRung(), 0);
}

// A program's own drop target, which records the text that is dropped.
class Target : public wxTextDropTarget
{
public:
    Target(bool& over, wxString& dropped) : m_over(over), m_dropped(dropped) {}
    wxDragResult OnDragOver(wxCoord, wxCoord, wxDragResult) override
    {
        m_over = true;
        return wxDragCopy;
    }
    bool OnDropText(wxCoord, wxCoord, const wxString& text) override
    {
        m_dropped = text;
        return true;
    }

private:
    bool& m_over;
    wxString& m_dropped;
};

TEST_F(NumberDrop, IsLeftToADropTargetOfTheProgram)
{
    wxString dropped;
    screen.number->SetDropTarget(new Target(over, dropped));
    Drop("1,234.50-");
    EXPECT_TRUE(PumpUntil([&] { return dropped == "1,234.50-"; }));
}

// A move inserts the digits at the new place, and then removes the digits at the old place. Between these two steps the
// text would have too many digits, so the move is refused.
TEST_F(NumberDrop, LosesNoDigitsThatItRefusesToMove)
{
    screen.Restart("12345");
    DragFirstDigit();
    EXPECT_TRUE(PumpUntil([&] { return screen.BellsRung() == 1; }));
    EXPECT_EQ(screen.Text(), L"12345");
}

// The handler destroys the control at once, while GTK still handles the drop.
TEST_F(NumberDrop, MayDestroyTheControlByAHandlerOfTheText)
{
    const wxWeakRef<wxNumberCtrl> number(screen.number);
    number->Bind(wxEVT_TEXT, [&](wxCommandEvent&) { number->Destroy(); });
    Drop("1,234.50-", true);
    EXPECT_TRUE(PumpUntil([&] { return !number; }));
    EXPECT_TRUE(PumpUntil([&] { return screen.first->GetValue().empty(); })) << "the text was taken";
}

TEST_F(NumberDrop, MayDestroyTheControlByAHandlerOfTheValue)
{
    const wxWeakRef<wxNumberCtrl> number(screen.number);
    number->Bind(wxEVT_NUMBER_CHANGED, [&](wxCommandEvent&) { number->Destroy(); });
    Drop("1,234.50-");
    EXPECT_TRUE(PumpUntil([&] { return !number; }));
}

// The control that the handler destroys is both the source and the target of the drag.
TEST_F(NumberDrop, MayDestroyTheControlWhoseDigitsAreMoved)
{
    screen.Restart("123");
    const wxWeakRef<wxNumberCtrl> number(screen.number);
    number->Bind(wxEVT_NUMBER_CHANGED, [&](wxCommandEvent&) { number->Destroy(); });
    DragFirstDigit();
    EXPECT_TRUE(PumpUntil([&] { return !number; }));
}

}  // namespace
