// Persistent report lists, and persistent data views. The class that makes data views persistent is in the toolkit.

#include <vector>

#include <gtest/gtest.h>
#include <wx/dataview.h>
#include <wx/frame.h>

#include <tests/config/persistence/stored.h>
#include <tests/support/gui.h>
#include <tests/support/owned_window.h>

namespace {

constexpr wchar_t kKind[] = L"List";

wxArrayInt Order(const std::vector<int>& columns)
{
    return wxArrayInt(columns.begin(), columns.end());
}

// A list whose columns can be reordered, as in other ports of the toolkit.
class OrderedList : public wxListView
{
public:
    using wxListView::wxListView;
    wxArrayInt GetColumnsOrder() const override { return order; }
    bool SetColumnsOrder(const wxArrayInt& set) override
    {
        order = set;
        return true;
    }
    wxArrayInt order;
};

template <typename List>
class ListFrame
{
public:
    explicit ListFrame(int columns = 3, long style = wxLC_REPORT)
        : frame(new wxFrame(nullptr, wxID_ANY, "list")),
          list(new List(frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, style))
    {
        for (int column = 0; column < columns; ++column)
            list->AppendColumn(wxString::Format("column %d", column), wxLIST_FORMAT_LEFT, 100);
    }

    std::vector<int> Widths() const
    {
        std::vector<int> widths;
        for (int column = 0; column < list->GetColumnCount(); ++column)
            widths.push_back(list->GetColumnWidth(column));
        return widths;
    }

    OwnedWindow<wxFrame> frame;
    List* list;
};

TEST(PersistentList, HasTheWidthsThatItHad)
{
    const TempPersistence data;
    {
        ListFrame<wxListCtrl> frame;
        EXPECT_FALSE(wxPersistentRegisterAndRestore(frame.list, "w"));
        frame.list->SetColumnWidth(1, 222);
        frame.list->SetColumnWidth(2, 33);
    }
    EXPECT_EQ(StoredValue(kKind, L"Widths"), L"100;222;33");
    EXPECT_EQ(StoredValue(kKind, L"Order"), L"(none)");
    ListFrame<wxListView> frame;
    EXPECT_TRUE(wxPersistentRegisterAndRestore(frame.list, "w"));
    EXPECT_EQ(frame.Widths(), (std::vector<int>{100, 222, 33}));
}

TEST(PersistentList, HasTheOrderThatItHadWhereColumnsHaveOne)
{
    const TempPersistence data;
    for (const bool isRestored : {false, true}) {
        ListFrame<OrderedList> frame;
        frame.list->order = Order({0, 1, 2});
        EXPECT_EQ(wxPersistentRegisterAndRestore(frame.list, "w"), isRestored);
        EXPECT_EQ(frame.list->order[0], isRestored ? 2 : 0);
        frame.list->order = Order({2, 0, 1});
    }
    for (const wchar_t* const order : {L"", L"2;0", L"2;0;0", L"2;0;3", L"-1;0;1", L"2;0;1;3", L"2,0,1", L"a;b;c"}) {
        StoreValue(kKind, L"Order", order);
        ListFrame<OrderedList> frame;
        frame.list->order = Order({0, 1, 2});
        EXPECT_TRUE(wxPersistentRegisterAndRestore(frame.list, "w"));
        EXPECT_EQ(frame.list->order[0], 0) << order;
    }
}

TEST(DamagedWidths, ChangeNothing)
{
    const TempPersistence data;
    for (const wchar_t* const widths : {L"", L"1", L"50;50", L"50;50;50;50", L"50;50;x", L"50;50;-1", L"50;50;-2",
                                        L"50;50;32768", L"50;;50", L"50;50;99999999999999999999", L"50 50 50", L";;"}) {
        StoreValue(kKind, L"Widths", widths);
        ListFrame<wxListCtrl> frame;
        EXPECT_FALSE(wxPersistentRegisterAndRestore(frame.list, "w")) << widths;
        EXPECT_EQ(frame.Widths(), (std::vector<int>{100, 100, 100})) << widths;
    }
}

TEST(ListOfAnotherKind, StoresNothing)
{
    const TempPersistence data;
    StoreValue(kKind, L"Widths", L"50;50;50");
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "list");
    auto* const list = new wxListCtrl(frame, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_LIST);
    EXPECT_FALSE(wxPersistentRegisterAndRestore(list, "w"));
    DestroyNow(frame);
    EXPECT_EQ(StoredValue(kKind, L"Widths"), L"50;50;50");
}

TEST(PersistentDataView, HasTheColumnsThatItHad)
{
    const TempPersistence data;
    for (const bool isRestored : {false, true}) {
        const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "list"));
        auto* const view = new wxDataViewListCtrl(frame, wxID_ANY);
        wxDataViewColumn* const name = view->AppendTextColumn("Name");
        wxDataViewColumn* const size = view->AppendTextColumn("Size");
        view->AppendTextColumn("Date");
        wxPersistentRegisterAndRestore(view, "w");
        ASSERT_TRUE(ShowAndSettle(frame));
        EXPECT_EQ(PumpUntil([&] { return name->GetWidth() == 123; }, isRestored ? 30000 : 0), isRestored);
        EXPECT_EQ(size->IsHidden(), isRestored);
        name->SetWidth(123);
        EXPECT_TRUE(PumpUntil([&] { return name->GetWidth() == 123; }));
        size->SetHidden(true);
    }
}

TEST(DamagedColumnOfADataView, ChangesNothing)
{
    const TempPersistence data;
    const std::wstring section = StoredSection(L"DataView") + L"/Columns/Name";
    for (const wchar_t* const text : {L"", L"x", L"7", L"-1", L"-2147483648", L"2147483647", L"99999999999"}) {
        CLocalRegStore::WriteString(section.c_str(), L"Hidden", text);
        CLocalRegStore::WriteString(section.c_str(), L"Width", text);
        const OwnedWindow<wxFrame> frame(new wxFrame(nullptr, wxID_ANY, "list"));
        auto* const view = new wxDataViewListCtrl(frame, wxID_ANY);
        wxDataViewColumn* const name = view->AppendTextColumn("Name");
        wxPersistentRegisterAndRestore(view, "w");
        EXPECT_FALSE(name->IsHidden()) << text;
        ASSERT_TRUE(ShowAndSettle(frame));
        EXPECT_GE(name->GetWidth(), 0) << text;
    }
}

}  // namespace
