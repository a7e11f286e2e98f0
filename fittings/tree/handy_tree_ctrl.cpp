#include <fittings/tree/handy_tree_ctrl.h>

#include <utility>

#include <wx/cursor.h>
#include <wx/imaglist.h>

#include <fittings/base/accessible.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/tree/tree_state.h>

namespace {

constexpr wchar_t kStateSection[] = L"TreeControlState";

// Less than the height of any text. The toolkit raises the row height to fit the highest item.
constexpr int kLeastRowHeight = 10;

// Shows the busy cursor in the whole application, because no window responds while a tree is filled.
class BusyCursor
{
public:
    BusyCursor() { wxSetCursor(*wxHOURGLASS_CURSOR); }
    ~BusyCursor() { wxSetCursor(wxNullCursor); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

}  // namespace

wxHandyTreeCtrl::wxHandyTreeCtrl()
{
    Bind(wxEVT_TREE_ITEM_EXPANDING, &wxHandyTreeCtrl::OnEvtItemExpanding, this, wxID_ANY, wxID_ANY);
}

wxHandyTreeCtrl::wxHandyTreeCtrl(wxWindow* parent, wxWindowID id, const wxPoint& pos, const wxSize& size, long style,
                                 const wxValidator& validator, const wxString& name)
    : wxHandyTreeCtrl()
{
    Create(parent, id, pos, size, style, validator, name);
}

wxHandyTreeCtrl::~wxHandyTreeCtrl()
{
    DetroyImageList();
}

void wxHandyTreeCtrl::Create(wxWindow* parent)
{
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTR_HAS_BUTTONS | wxTR_NO_LINES);
    CreateImageList();
}

bool wxHandyTreeCtrl::Create(wxWindow* parent, wxWindowID id, const wxPoint& pos, const wxSize& size, long style,
                             const wxValidator& validator, const wxString& name)
{
    return wxTreeCtrlEx::Create(parent, id, pos, size, style, validator, name);
}

void wxHandyTreeCtrl::CreateImageList()
{
    m_imageList = new wxImageList(16, 16, true, 1);
    SetImageList(m_imageList);
}

// Sets the images. If there is no list, also lowers the row height: the toolkit would leave the rows as high as the
// earlier images. When the toolkit measures the items again, it raises the row height as needed, but never lowers it.
void wxHandyTreeCtrl::SetImageList(wxImageList* images)
{
    wxTreeCtrlEx::SetImageList(images);
    if (!images)
        m_lineHeight = kLeastRowHeight;
}

void wxHandyTreeCtrl::DetroyImageList()
{
    delete m_imageList;
    m_imageList = nullptr;
}

void wxHandyTreeCtrl::SetProfile(const wxString& profile)
{
    m_profile = profile;
}

bool wxHandyTreeCtrl::SelectRootItem()
{
    const wxTreeItemId root = GetRootItem();
    if (!root.IsOk())
        return false;
    SelectItem(root, true);
    SetFocus();
    return true;
}

void wxHandyTreeCtrl::SaveState(const wxString& name, const wxTreeCursor& start)
{
    CLocalRegStore::WriteString(kStateSection, name.wc_str(), fittings::ExpandedLabels(start).c_str());
}

void wxHandyTreeCtrl::SaveState(const wxTreeCursor& start)
{
    SaveState(m_profile, start);
}

void wxHandyTreeCtrl::SaveState(const wxString& name, wxTreeCursor& start)
{
    SaveState(name, std::as_const(start));
}

void wxHandyTreeCtrl::SaveState(wxTreeCursor& start)
{
    SaveState(std::as_const(start));
}

void wxHandyTreeCtrl::LoadState(const wxString& name, const wxTreeCursor& start)
{
    fittings::ExpandLabels(CLocalRegStore::GetString(kStateSection, name.wc_str(), L""), start);
}

void wxHandyTreeCtrl::LoadState(const wxTreeCursor& start)
{
    LoadState(m_profile, start);
}

void wxHandyTreeCtrl::LoadState(const wxString& name, wxTreeCursor& start)
{
    LoadState(name, std::as_const(start));
}

void wxHandyTreeCtrl::LoadState(wxTreeCursor& start)
{
    LoadState(std::as_const(start));
}

void wxHandyTreeCtrl::OnEvtItemExpanding(wxTreeEvent& event)
{
    const BusyCursor busy;
    OnItemExpanding(wxTreeCursor(this, event.GetItem()));
}

void wxHandyTreeCtrl::OnInternalIdle()
{
    wxTreeCtrlEx::OnInternalIdle();
    const wxTreeItemId item = GetFocusedItem();
    fittings::Describe(*this, fittings::AccessibleRole::Tree, GetLabelText(),
                       item.IsOk() ? GetItemText(item) : wxString());
    fittings::LabelPart(*this, *this);
}

void wxHandyTreeCtrl::OnItemExpanding(const wxTreeCursor&) {}
