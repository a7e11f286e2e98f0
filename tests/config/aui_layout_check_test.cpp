// Which texts count as a stored AUI layout: only those that the toolkit writes and can read back quickly.

#include <fittings/config/aui_layout.h>

#include <functional>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <wx/aui/auibar.h>
#include <wx/aui/framemanager.h>
#include <wx/frame.h>
#include <wx/panel.h>

#include <tests/support/gui.h>

namespace {

const std::wstring kTree = L"name=tree;caption=Folders;state=2099196;dir=4;layer=1;row=0;pos=0;prop=100000;bestw=150;"
                           L"besth=-1;minw=-1;minh=-1;maxw=-1;maxh=-1;floatx=-1;floaty=-1;floatw=-1;floath=-1|";
const std::wstring kList = L"name=list;caption=;state=768;dir=5;layer=0;row=0;pos=0;prop=100000;bestw=20;besth=20;"
                           L"minw=-1;minh=-1;maxw=-1;maxh=-1;floatx=820;floaty=-30;floatw=230;floath=180|";
const std::wstring kDocks = L"dock_size(4,1,0)=152|dock_size(5,0,0)=22|";
const std::wstring kWhole = L"layout2|" + kTree + kList + kDocks;

// Returns the complete layout with the first occurrence of @a part replaced.
std::wstring With(const std::wstring& part, const std::wstring& replacement)
{
    std::wstring layout = kWhole;
    EXPECT_NE(layout.find(part), layout.npos) << "not in the layout";
    return layout.replace(layout.find(part), part.size(), replacement);
}

bool IsLayout(const std::wstring& text)
{
    return fittings::IsAuiLayout(text);
}

TEST(AuiLayout, IsWhatTheToolkitWrites)
{
    EXPECT_TRUE(IsLayout(kWhole));
    EXPECT_TRUE(IsLayout(L"layout2|"));
    EXPECT_TRUE(IsLayout(L"layout2|" + kTree));  // Before the first update there are no docks.
}

TEST(AuiLayout, IsNotATextThatIsCut)
{
    for (std::size_t length = 0; length < kWhole.size(); ++length) {
        // A text that is cut after a "|" is still a complete layout.
        const bool isBetweenParts = length > 0 && kWhole[length - 1] == L'|';
        EXPECT_EQ(IsLayout(kWhole.substr(0, length)), isBetweenParts) << "after " << length;
    }
}

TEST(AuiLayout, IsNotATextWithoutOneOfItsDelimiters)
{
    for (std::size_t at = kWhole.find_first_of(L";=|(,)"); at != kWhole.npos;
         at = kWhole.find_first_of(L";=|(,)", at + 1)) {
        std::wstring layout = kWhole;
        layout.erase(at, 1);
        EXPECT_FALSE(IsLayout(layout)) << wxString(layout);
    }
}

TEST(AuiLayout, IsNotATextWithMoreThanTheToolkitWrites)
{
    for (const std::wstring& layout :
         {kWhole + L" ", kWhole + L"|", kWhole + kTree, L" " + kWhole, With(L"state=", L" state="),
          With(L";floath=-1", L";floath=-1;"), With(L";floath=-1", L";floath=-1;floath=-1"),
          With(L"dir=4;layer=1", L"layer=1;dir=4"), With(L"caption=Folders", L"caption=Folders;caption=Folders")})
        EXPECT_FALSE(IsLayout(layout)) << wxString(layout);
}

TEST(AuiLayout, IsNotATextOfAnotherKind)
{
    for (const wchar_t* const text : {L"", L"nonsense", L"stored", L"layout1|", L"layout2", L"layout2||", L"LAYOUT2|"})
        EXPECT_FALSE(IsLayout(text)) << wxString(text);
}

using Replaced = std::pair<const wchar_t*, const wchar_t*>;

TEST(AuiLayout, IsNotATextWithADamagedName)
{
    for (const auto& [part, replacement] : {Replaced{L"state=", L"stat="}, Replaced{L"state=", L"State="},
                                            Replaced{L"name=tree", L"game=tree"}, Replaced{L"caption=", L"capture="},
                                            Replaced{L"floath=", L"floatk="}, Replaced{L"dock_size(4", L"dock_size[4"},
                                            Replaced{L"dock_size(4", L"pane_size(4"}, Replaced{L"152|", L"152"}})
        EXPECT_FALSE(IsLayout(With(part, replacement))) << wxString(replacement);
}

TEST(AuiLayout, IsNotATextWithANumberThatTheToolkitDoesNotWrite)
{
    for (const auto& [part, replacement] :
         {Replaced{L"row=0", L"row="}, Replaced{L"row=0", L"row=-"}, Replaced{L"row=0", L"row=-0"},
          Replaced{L"row=0", L"row=00"}, Replaced{L"row=0", L"row=+1"}, Replaced{L"row=0", L"row=0x1"},
          Replaced{L"row=0", L"row=1.5"}, Replaced{L"row=0", L"row= 1"}, Replaced{L"row=0", L"row=\u0661"},
          Replaced{L"pos=0", L"pos=99999999999999999999"}, Replaced{L"state=2099196", L"state=-1"},
          Replaced{L"state=2099196", L"state=4294967296"}, Replaced{L"=152", L"="}, Replaced{L"=152", L"=1e2"}})
        EXPECT_FALSE(IsLayout(With(part, replacement))) << wxString(replacement);
}

TEST(AuiLayout, IsNotATextWithAPlaceThatTheToolkitDoesNotLayOut)
{
    for (const auto& [part, replacement] :
         {Replaced{L"row=0", L"row=2147483647"}, Replaced{L"row=0", L"row=-1"},
          Replaced{L"layer=1", L"layer=2147483647"}, Replaced{L"layer=1", L"layer=-7"},
          Replaced{L"pos=0", L"pos=2147483647"}, Replaced{L"dir=4", L"dir=6"}, Replaced{L"dir=4", L"dir=-1"},
          Replaced{L"prop=100000", L"prop=-1"}, Replaced{L"prop=100000", L"prop=2147483647"},
          Replaced{L"bestw=150", L"bestw=2147483647"}, Replaced{L"floatx=-1", L"floatx=-2147483648"},
          Replaced{L"(4,1,0)", L"(4,1,2147483647)"}, Replaced{L"(4,1,0)", L"(4,2147483647,0)"},
          Replaced{L"(4,1,0)", L"(9,1,0)"}, Replaced{L"(4,1,0)", L"(4,-1,0)"}, Replaced{L"=152", L"=2147483647"}})
        EXPECT_FALSE(IsLayout(With(part, replacement))) << wxString(replacement);
}

TEST(AuiLayout, IsATextWithAnyPlaceThatTheToolkitLaysOut)
{
    for (const auto& [part, replacement] :
         {Replaced{L"row=0", L"row=900"}, Replaced{L"layer=1", L"layer=100"}, Replaced{L"pos=0", L"pos=5000"},
          Replaced{L"pos=0", L"pos=-20"}, Replaced{L"dir=4", L"dir=0"}, Replaced{L"prop=100000", L"prop=0"},
          Replaced{L"floatx=-1", L"floatx=-1900"}, Replaced{L"(4,1,0)", L"(4,10,300)"}})
        EXPECT_TRUE(IsLayout(With(part, replacement))) << wxString(replacement);
    EXPECT_FALSE(IsLayout(With(L"layer=1;row=0", L"layer=9999;row=9999"))) << "a hundred million rows";
}

TEST(AuiLayout, HasOnePaneThatIsDraggedAtMost)
{
    const std::wstring dragged = With(L"state=2099196", L"state=4294967295");
    EXPECT_TRUE(IsLayout(dragged));
    EXPECT_FALSE(IsLayout(L"layout2|" + dragged.substr(8, kTree.size() + 3) + dragged.substr(8)));
}

TEST(AuiLayout, HasNoMorePartsThanTheToolkitReadsAtOnce)
{
    std::wstring layout = L"layout2|";
    for (int pane = 0; pane < 500; ++pane)
        layout += kTree;
    EXPECT_TRUE(IsLayout(layout));
    for (int dock = 0; dock < 2000; ++dock)
        layout += L"dock_size(4,1,0)=152|";
    EXPECT_FALSE(IsLayout(layout));
    EXPECT_FALSE(IsLayout(With(L"Folders", std::wstring(2000000, L'a'))));
}

// The toolkit reads the text after a ";" in a caption as the next field of the pane. At an empty field, it ignores the
// rest of the pane, and with it the pane's real row. A caption can therefore set the row, so the check limits the
// numbers in captions, too.
TEST(AuiLayout, HasNoNumberInACaptionThatTheToolkitLaysOutForLong)
{
    EXPECT_TRUE(IsLayout(With(L"Folders", L"Folders\\; row=7\\;")));
    EXPECT_FALSE(IsLayout(With(L"Folders", L"a\\;row=2147483647\\;")));
    EXPECT_FALSE(IsLayout(With(L"Folders", L"a\\;prop=-100000\\;")));
    EXPECT_TRUE(IsLayout(With(L"Folders", L"a\\;row=100\\;")));
    EXPECT_FALSE(IsLayout(With(L"Folders", L"a\\;row=101\\;")));
    EXPECT_FALSE(IsLayout(With(L"Folders", L"a\brow=2147483647\b")));
}

// A frame with panes of several kinds, laid out by an AUI manager.
class PanesFrame : public wxFrame
{
public:
    PanesFrame() : wxFrame(nullptr, wxID_ANY, "panes", wxPoint(200, 100), wxSize(700, 500))
    {
        manager.SetManagedWindow(this);
        manager.AddPane(new wxPanel(this),
                        wxAuiPaneInfo().Name("tree").Left().Layer(1).Caption("Folders").BestSize(150, -1));
        manager.AddPane(new wxPanel(this),
                        wxAuiPaneInfo().Name("log").Bottom().Row(2).MinSize(50, 40).MaximizeButton());
        manager.AddPane(new wxPanel(this), wxAuiPaneInfo().Name("list").CenterPane());
        manager.AddPane(new wxPanel(this), wxAuiPaneInfo().Right().PinButton().DestroyOnClose());
        auto* bar = new wxAuiToolBar(this);
        bar->AddTool(1, "Open", wxBitmap(16, 16));
        bar->Realize();
        manager.AddPane(bar, wxAuiPaneInfo().Name("bar").ToolbarPane().Top().Position(99999));
        manager.Update();
    }
    ~PanesFrame() override { manager.UnInit(); }

    wxAuiPaneInfo& Pane(const char* name) { return manager.GetPane(name); }

    wxAuiManager manager;
};

void ExpectAccepted(PanesFrame& frame)
{
    const std::wstring layout = frame.manager.SavePerspective().ToStdWstring();
    EXPECT_TRUE(IsLayout(layout)) << wxString(layout);
}

TEST(AuiLayout, IsWhatAManagerWritesOfAnyArrangement)
{
    PanesFrame frame;
    ExpectAccepted(frame);
    ASSERT_TRUE(ShowAndSettle(&frame));
    ExpectAccepted(frame);
    const std::function<void()> changes[] = {
        [&] { frame.Pane("log").Hide(); },
        [&] { frame.Pane("tree").Float().FloatingPosition(820, 300).FloatingSize(230, 180); },
        [&] { frame.Pane("log").Show().Top().Row(1).Position(3); },
        [&] { frame.manager.MaximizePane(frame.Pane("log")); },
        [&] { frame.manager.RestoreMaximizedPane(); },
        [&] { frame.Pane("bar").Bottom().Position(300); },
        [&] { frame.Pane("tree").Dock().Fixed().DockFixed(); },
    };
    for (const auto& change : changes) {
        change();
        ExpectAccepted(frame);
        frame.manager.Update();
        ExpectAccepted(frame);
        PumpPending();
        ExpectAccepted(frame);
    }
}

TEST(AuiLayout, IsWhatAManagerWritesOfAnyText)
{
    PanesFrame frame;
    for (const char* const text :
         {// The characters that separate the parts of a layout, alone and escaped.
          "", " ", "\\", "\\\\", "a\\", ";", "|", "\\;", "\\|", ";;", "||", "a;b|c\\d", "=", "\"", "a\nb", "\a\b",
          // Parts of a layout.
          ";caption=", "x;caption=y", "\\;caption=\\", ";state=", "a;state=1;dir=2",
          "a\\;state=", "|name=b;caption=c;state=", "name=", "dock_size(4,0,0)=1|",
          // Texts that are not ASCII.
          "\u3042\u3044", "\U0001F600"}) {
        frame.Pane("tree").Caption(wxString::FromUTF8(text));
        ExpectAccepted(frame);
        const wxString name = frame.Pane("log").name;
        frame.Pane("log").Name(wxString::FromUTF8(text));
        ExpectAccepted(frame);
        frame.manager.GetPane(wxString::FromUTF8(text)).Name(name);
    }
}

}  // namespace
