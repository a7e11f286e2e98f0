#include <tests/gallery/numbers/numbers_page_fixture.h>

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
