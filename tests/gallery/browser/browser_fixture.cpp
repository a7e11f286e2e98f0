#include <tests/gallery/browser/browser_fixture.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include <gtk/gtk.h>
#include <wx/aui/floatpane.h>

#include <gallery/folders/folder_listing.h>
#include <gallery/folders/native_text.h>
#include <gallery/pages/window_helpers.h>

using namespace gallery;
using namespace gallery::simulated_user;

BrowserTest::BrowserTest() : root(std::filesystem::canonical(temp.Path()).native()) {}

BrowserTest::~BrowserTest()
{
    if (frame)
        Close();
}

void BrowserTest::Open(const std::string& path)
{
    frame = new GalleryFrame;
    frame->Start(path);
    ASSERT_TRUE(ShowAndSettle(frame));
}

void BrowserTest::Close()
{
    frame->Close();
    frame = nullptr;
    ASSERT_TRUE(PumpUntil([] { return wxTopLevelWindows.empty(); }));
}

void BrowserTest::OpenNextSession()
{
    Close();
    Open("");
}

void BrowserTest::Resize(const wxSize& size)
{
    const auto sizeOnScreen = [this] {
        return wxSize(gtk_widget_get_allocated_width(frame->GetHandle()),
                      gtk_widget_get_allocated_height(frame->GetHandle()));
    };
    const wxSize decorations = frame->GetSize() - sizeOnScreen();
    frame->SetSize(size);
    // GetSize() already returns the new size before the screen shows it.
    ASSERT_TRUE(PumpUntil([&] { return frame->GetSize() == size && sizeOnScreen() + decorations == size; }));
    PumpPending();
}

BrowserTest::Strings BrowserTest::Rows()
{
    Strings names;
    for (unsigned row = 0; row < List().CountRows(); ++row)
        names.push_back(List().GetEntry(row).name);
    return names;
}

unsigned BrowserTest::RowOf(const std::string& name)
{
    const Strings names = Rows();
    const auto found = std::find(names.begin(), names.end(), name);
    EXPECT_NE(found, names.end()) << name;
    return static_cast<unsigned>(found - names.begin());
}

wxTreeItemId BrowserTest::Item(const std::string& path)
{
    wxTreeItemId item = Tree().GetRootItem();
    std::istringstream names(path);
    for (std::string name; std::getline(names, name, '/');) {
        wxTreeItemIdValue cookie;
        wxTreeItemId child = Tree().GetFirstChild(item, cookie);
        while (child.IsOk() && Tree().GetItemText(child) != DisplayText(name))
            child = Tree().GetNextChild(item, cookie);
        if (!child.IsOk())
            return child;
        item = child;
    }
    return item;
}

void BrowserTest::ClickFolder(const std::string& path)
{
    const wxTreeItemId item = Item(path);
    ASSERT_TRUE(item.IsOk()) << path;
    Tree().EnsureVisible(item);
    PumpPending();
    Click(CentreOf(LabelRect(Tree(), item)));
    ASSERT_TRUE(SelectionComesTo(path));
}

void BrowserTest::Select(const std::string& path)
{
    Tree().SelectPath(JoinPath(root, path));
    ASSERT_TRUE(SelectionComesTo(path));
}

bool BrowserTest::SelectionComesTo(const std::string& path)
{
    return PumpUntil([&] { return Tree().GetSelectedPath() == (path.empty() ? root : JoinPath(root, path)); });
}

void BrowserTest::FloatFolders(const wxPoint& place)
{
    wxAuiPaneInfo& pane = frame->GetBrowser()->GetLayout().GetPane(&Tree());
    pane.Float().FloatingSize(300, 260);
    frame->GetBrowser()->GetLayout().Update();
    ASSERT_TRUE(PumpUntil([&] { return Tree().IsShownOnScreen() && Tree().GetSize().y < 300; }));
    // The window manager chooses where a window first appears, so move the pane after it is shown.
    pane.frame->Move(place);
    ASSERT_TRUE(FoldersComeTo(place));
}

bool BrowserTest::FoldersComeTo(const wxPoint& place)
{
    return PumpUntil([&] {
        const wxAuiPaneInfo& pane = frame->GetBrowser()->GetLayout().GetPane(&Tree());
        if (!pane.frame)
            return false;
        const wxRect shown = FrameRect(pane.frame->GetHandle());
        return shown.GetPosition() == place && shown.Contains(WindowRect(Tree()));
    });
}
