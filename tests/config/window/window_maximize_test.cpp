#include <fittings/config/wx_window_state.h>

#include <memory>

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/frame.h>

#include <fittings/platform/local_reg_store.h>
#include <tests/config/window/stored_geometry.h>
#include <tests/support/gui.h>
#include <tests/support/replaced_function.h>
#include <tests/support/temp_folder.h>

namespace {

int g_handlersDestroyed = 0;

}  // namespace

// Replaces the destructor of wxEvtHandler: counts the call, and calls the original. The library's handler is private
// and deletes itself, so a test can notice only the call of the destructor.
extern "C" void DestroyHandler(wxEvtHandler* handler) __asm__("_ZN12wxEvtHandlerD2Ev");

extern "C" void DestroyHandler(wxEvtHandler* handler)
{
    static const auto original = ReplacedFunction<void(wxEvtHandler*)>("_ZN12wxEvtHandlerD2Ev");
    ++g_handlersDestroyed;
    original(handler);
}

namespace {

// A frame that counts the calls of Maximize(true) and of Maximize(false).
class CountingFrame : public wxFrame
{
public:
    CountingFrame() : wxFrame(nullptr, wxID_ANY, "counting", wxPoint(300, 200), wxSize(400, 300)) {}

    void Maximize(bool maximize = true) override
    {
        ++(maximize ? maximized : restored);
        wxFrame::Maximize(maximize);
    }

    int maximized = 0;
    int restored = 0;
};

void StoreState(const wchar_t* geometry, bool maximized)
{
    StoreGeometry(geometry);
    CLocalRegStore::WriteProfileBool(L"wxWindowMaximize", L"w", maximized);
}

bool StoredFlag(bool otherwise)
{
    return CLocalRegStore::GetProfileBool(L"wxWindowMaximize", L"w", otherwise);
}

bool MaximizeAndSettle(wxFrame* frame)
{
    frame->Maximize();
    return PumpUntil([&] { return frame->IsMaximized() && frame->GetSize() == wxSize(1264, 960); });
}

// Posts an event like the one that the toolkit sends when a frame is maximised. @a object becomes the event's object.
void PostMaximizeEvent(wxFrame* frame, wxObject* object)
{
    wxMaximizeEvent event(frame->GetId());
    event.SetEventObject(object);
    wxPostEvent(frame, event);
}

class StateOfAFrame : public UserDataTest
{
protected:
    CountingFrame frame;
};

using SaveStateOfAFrame = StateOfAFrame;
using LoadStateOfAFrame = StateOfAFrame;
using LoadStateOfAWindow = StateOfAFrame;

TEST_F(SaveStateOfAFrame, StoresThatItIsNotMaximized)
{
    ASSERT_TRUE(ShowAndSettle(&frame));
    wx_window_state::SaveState(&frame, L"w");
    EXPECT_FALSE(StoredFlag(true));
    EXPECT_EQ(StoredGeometry(), L"300;200;400;300");
}

TEST_F(SaveStateOfAFrame, StoresTheMaximizedGeometryAndTheFlag)
{
    ASSERT_TRUE(ShowAndSettle(&frame));
    ASSERT_TRUE(MaximizeAndSettle(&frame));
    wx_window_state::SaveState(&frame, L"w");
    EXPECT_TRUE(StoredFlag(false));
    const wxRect rect = frame.GetRect();
    EXPECT_EQ(wxString(StoredGeometry()), wxString::Format("%d;%d;1264;960", rect.x, rect.y));
}

TEST_F(SaveStateOfAFrame, StoresAgainThatItIsNotMaximizedAnyMore)
{
    StoreState(L"100;100;300;200", true);
    wx_window_state::SaveState(&frame, L"w");
    EXPECT_FALSE(StoredFlag(true));
}

TEST_F(LoadStateOfAFrame, MaximizesOnALaterTurnOfTheEventLoop)
{
    StoreState(L"100;100;300;200", true);
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_EQ(frame.GetRect(), wxRect(100, 100, 300, 200));
    EXPECT_EQ(frame.maximized, 0);
    EXPECT_FALSE(frame.IsMaximized());

    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.maximized, 1);

    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(PumpUntil([&] { return frame.IsMaximized(); }));
    EXPECT_TRUE(PumpUntil([&] { return frame.GetSize() == wxSize(1264, 960); }));
    EXPECT_EQ(frame.maximized, 1);
    EXPECT_EQ(frame.restored, 0);
}

TEST_F(LoadStateOfAFrame, MaximizesAShownFrameLaterToo)
{
    StoreState(L"100;100;300;200", true);
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_EQ(frame.maximized, 0);
    EXPECT_FALSE(frame.IsMaximized());
    EXPECT_TRUE(PumpUntil([&] { return frame.IsMaximized(); }));
    EXPECT_EQ(frame.maximized, 1);
}

TEST_F(LoadStateOfAFrame, LeavesItAsItIsWhenTheFlagIsNotSet)
{
    StoreState(L"100;100;300;200", false);
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_EQ(frame.maximized, 0);
    EXPECT_EQ(frame.restored, 0);
    EXPECT_FALSE(frame.IsMaximized());
}

TEST_F(LoadStateOfAFrame, LeavesItAsItIsWhenThereIsNoFlag)
{
    StoreGeometry(L"100;100;300;200");
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    PumpPending();
    EXPECT_EQ(frame.maximized, 0);
}

TEST_F(LoadStateOfAFrame, DoesNotAskForTheFlagWithoutAGeometry)
{
    StoreState(L"1;2;3", true);
    EXPECT_FALSE(wx_window_state::LoadState(&frame, L"w"));
    PumpPending();
    EXPECT_EQ(frame.maximized, 0);
}

TEST_F(LoadStateOfAFrame, MaximizesWhenTheStoredSizeIsTooSmallToBeApplied)
{
    StoreState(L"100;100;5;600", true);
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    EXPECT_EQ(frame.GetRect(), wxRect(300, 200, 400, 300));
    PumpPending();
    EXPECT_EQ(frame.maximized, 1);
}

TEST_F(LoadStateOfAWindow, LeavesTheFlagAlone)
{
    StoreState(L"100;100;300;200", true);
    EXPECT_TRUE(wx_window_state::LoadState(static_cast<wxWindow*>(&frame), L"w"));
    PumpPending();
    EXPECT_EQ(frame.maximized, 0);
}

TEST(MaximizedFrame, ComesBackMaximized)
{
    const TempUserData data;
    {
        CountingFrame frame;
        ASSERT_TRUE(ShowAndSettle(&frame));
        ASSERT_TRUE(MaximizeAndSettle(&frame));
        wx_window_state::SaveState(&frame, L"w");
    }
    CountingFrame frame;
    EXPECT_TRUE(wx_window_state::LoadState(&frame, L"w"));
    ASSERT_TRUE(ShowAndSettle(&frame));
    EXPECT_TRUE(PumpUntil([&] { return frame.IsMaximized() && frame.GetSize() == wxSize(1264, 960); }));
    EXPECT_EQ(frame.maximized, 1);
}

TEST(MaximizeFrame, ActsOnce)
{
    CountingFrame frame;
    ASSERT_TRUE(ShowAndSettle(&frame));
    wx_window_state::MaximizeFrame(&frame);
    ASSERT_TRUE(PumpUntil([&] { return frame.IsMaximized() && frame.GetSize() == wxSize(1264, 960); }));
    frame.Maximize(false);
    ASSERT_TRUE(PumpUntil([&] { return !frame.IsMaximized() && frame.GetRect() == wxRect(300, 200, 400, 300); }))
        << frame.IsMaximized() << " at " << frame.GetPosition().x << ";" << frame.GetPosition().y << ", "
        << frame.GetSize().x << "x" << frame.GetSize().y;

    PostMaximizeEvent(&frame, &frame);
    wxTheApp->ProcessPendingEvents();
    PumpPending();
    EXPECT_EQ(frame.maximized, 1);
    EXPECT_FALSE(frame.IsMaximized());
}

TEST(MaximizeFrame, IsUnboundBeforeItMaximizes)
{
    class EventInMaximize : public wxFrame
    {
    public:
        EventInMaximize() : wxFrame(nullptr, wxID_ANY, "event") {}
        void Maximize(bool) override
        {
            ++calls;
            wxMaximizeEvent event(GetId());
            event.SetEventObject(this);
            if (calls < 5)
                HandleWindowEvent(event);
        }
        int calls = 0;
    };
    EventInMaximize frame;
    wx_window_state::MaximizeFrame(&frame);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.calls, 1);
}

TEST(MaximizeFrame, LetsTheHostsHandlersSeeTheToolkitsEvents)
{
    CountingFrame frame;
    int seen = 0;
    frame.Bind(wxEVT_MAXIMIZE, [&](wxMaximizeEvent& event) {
        ++seen;
        event.Skip();
    });
    wx_window_state::MaximizeFrame(&frame);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.maximized, 1);
    const int before = seen;
    PostMaximizeEvent(&frame, &frame);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(seen, before + 1);
    EXPECT_EQ(frame.maximized, 1);
}

TEST(MaximizeFrame, CalledTwiceMaximizesTwice)
{
    CountingFrame frame;
    wx_window_state::MaximizeFrame(&frame);
    wx_window_state::MaximizeFrame(&frame);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.maximized, 2);
    PostMaximizeEvent(&frame, &frame);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.maximized, 2);
}

TEST(MaximizeFrame, MaximizesAFrameThatIsMaximizedToo)
{
    CountingFrame frame;
    ASSERT_TRUE(ShowAndSettle(&frame));
    ASSERT_TRUE(MaximizeAndSettle(&frame));
    wx_window_state::MaximizeFrame(&frame);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.maximized, 2);
    EXPECT_EQ(frame.restored, 0);
}

TEST(MaximizeFrame, PostsAnEventOfTheFrames)
{
    CountingFrame frame;
    wx_window_state::MaximizeFrame(&frame);
    int seen = 0;
    frame.Bind(wxEVT_MAXIMIZE, [&](wxMaximizeEvent& event) {
        ++seen;
        EXPECT_EQ(event.GetId(), frame.GetId());
        EXPECT_EQ(event.GetEventObject(), &frame);
        event.Skip();
    });
    EXPECT_EQ(seen, 0);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(frame.maximized, 1);
}

TEST(MaximizeFrame, ActsOnAnEventWithTheFramesIdAlone)
{
    CountingFrame frame;
    wx_window_state::MaximizeFrame(&frame);
    wxMaximizeEvent other(frame.GetId() + 1);
    other.SetEventObject(&frame);
    frame.HandleWindowEvent(other);
    EXPECT_EQ(frame.maximized, 0);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.maximized, 1);
}

TEST(MaximizeFrame, DestroysItsHandlerOnceItHasActed)
{
    CountingFrame frame;
    PumpPending();
    const int before = g_handlersDestroyed;
    wx_window_state::MaximizeFrame(&frame);
    EXPECT_EQ(g_handlersDestroyed, before);
    wxTheApp->ProcessPendingEvents();
    ASSERT_EQ(frame.maximized, 1);
    EXPECT_EQ(g_handlersDestroyed, before + 1);
}

// The frame does not own the handler, so destroying the frame before it is maximised does not destroy the handler.
TEST(MaximizeFrame, LeavesItsHandlerToNobodyWhenTheFrameGoesFirst)
{
    auto plain = std::make_unique<CountingFrame>();
    int before = g_handlersDestroyed;
    plain.reset();
    const int ofAFrame = g_handlersDestroyed - before;
    auto frame = std::make_unique<CountingFrame>();
    wx_window_state::MaximizeFrame(frame.get());
    before = g_handlersDestroyed;
    frame.reset();
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(g_handlersDestroyed - before, ofAFrame);
}

TEST(MaximizeFrame, IgnoresAnEventThatNamesNoFrame)
{
    CountingFrame frame;
    PostMaximizeEvent(&frame, nullptr);
    wx_window_state::MaximizeFrame(&frame);
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(frame.maximized, 1);
}

TEST(MaximizeFrame, ForgetsAFrameThatIsGoneBeforeItsTurn)
{
    auto frame = std::make_unique<CountingFrame>();
    wx_window_state::MaximizeFrame(frame.get());
    frame.reset();
    wxTheApp->ProcessPendingEvents();
    PumpPending();

    auto* destroyed = new CountingFrame;
    ASSERT_TRUE(ShowAndSettle(destroyed));
    wx_window_state::MaximizeFrame(destroyed);
    destroyed->Destroy();
    PumpPending();
    PumpPending();
}

}  // namespace
