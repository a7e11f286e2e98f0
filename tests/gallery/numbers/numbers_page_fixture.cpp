#include <tests/gallery/numbers/numbers_page_fixture.h>

#include <gtk/gtk.h>

using namespace gallery::simulated_user;

void NumbersPageTest::OpenPage()
{
    Open(temp.Path());
    GoTo("Number", '2');
}

void NumbersPageTest::OpenNextSession()
{
    BrowserTest::OpenNextSession();
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

void NumbersPageTest::GoTo(const wxString& name, int key, int modifiers)
{
    Press(key, modifiers);
    ASSERT_TRUE(FocusComesTo(name)) << name;
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
    GoTo("Number", 'N');
    Number().SelectAll();
    Press(WXK_BACK);
    Type(text);
}
