#include <tests/gallery/numbers/numbers_page_fixture.h>

#include <gtk/gtk.h>

using namespace gallery::simulated_user;

void NumbersPageTest::OpenPage()
{
    Open(temp.Path());
    Press('2', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("Number"));
}

void NumbersPageTest::OpenNextSession()
{
    Close();
    Open("");
    ASSERT_TRUE(PumpUntil([this] { return Number().IsShownOnScreen(); }));
}

wxString NumbersPageTest::FocusName()
{
    GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(frame->GetHandle()));
    for (const wxWindow* parent :
         {static_cast<wxWindow*>(frame->GetNumbers()->GetFields()), static_cast<wxWindow*>(frame->GetNumbers())}) {
        for (const wxWindow* child : parent->GetChildren()) {
            if (focus && (focus == child->GetHandle() || gtk_widget_is_ancestor(focus, child->GetHandle())))
                return child->GetName();
        }
    }
    return {};
}

bool NumbersPageTest::FocusComesTo(const wxString& name)
{
    return PumpUntil([&] { return FocusName() == name; });
}

void NumbersPageTest::Type(const std::string& text)
{
    for (const char key : text) {
        if (key == '\b')
            Press(WXK_BACK);
        else
            Press(key);
    }
    PumpPending();
}

void NumbersPageTest::TypeNumber(const std::string& text)
{
    Press('N', wxMOD_ALT);
    ASSERT_TRUE(FocusComesTo("Number"));
    Number().SelectAll();
    Press(WXK_BACK);
    Type(text);
}
