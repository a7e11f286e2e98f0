#include <gallery/browser/folder_tree.h>

#include <utility>

#include <wx/artprov.h>
#include <wx/imaglist.h>
#include <wx/scopeguard.h>
#include <wx/wupdlock.h>

#include <fittings/platform/local_reg_store.h>

#include <gallery/browser/browser_settings.h>
#include <gallery/folders/folder_listing.h>
#include <gallery/folders/native_text.h>
#include <gallery/pages/readable_colour.h>

namespace gallery {

namespace {

// Returns an image in the resolution of the screen that shows @a window.
wxBitmap Icon(const wxArtID& id, const wxWindow* window)
{
    return wxArtProvider::GetBitmapBundle(id, wxART_OTHER, wxSize(16, 16)).GetBitmapFor(window);
}

// Returns the parent folder. For "/", returns "/".
std::string ParentPath(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

std::string LastName(const std::string& path)
{
    return path == "/" ? path : path.substr(path.rfind('/') + 1);
}

bool StandsBefore(const std::string& name, const Subfolder& folder)
{
    return std::make_pair(SortKey(name), name) < std::make_pair(folder.sortKey, folder.name);
}

}  // namespace

FolderTree::FolderTree(wxWindow* parent)
{
    Create(parent);
    SetName("Folders");
    SetLabel("Folders");
    SetMinSize(FromDIP(wxSize(120, 80)));

    wxImageList* images = GetImageList();
    m_images.folder = images->Add(Icon(wxART_FOLDER, this));
    m_images.open = images->Add(Icon(wxART_FOLDER_OPEN, this));
    m_images.unreadable = images->Add(Icon(wxART_FOLDER, this).ConvertToDisabled());
    m_images.disk = images->Add(Icon(wxART_HARDDISK, this));
}

void FolderTree::SetRootFolder(const std::string& path)
{
    m_root = path;
    SetProfile(TextFromPath(path));

    DeleteAllItems();
    m_names.clear();
    Subfolder folder;
    folder.name = LastName(path);
    wxTreeCursor root = AddRoot(DisplayText(folder.name));
    Dress(root.item, folder);
    if (path == "/") {
        root.SetImage(m_images.disk, wxTreeItemIcon_Normal);
        root.SetImage(m_images.disk, wxTreeItemIcon_Expanded);
    }
}

std::string FolderTree::PathOf(const wxTreeItemId& item) const
{
    const std::string below = PathBelowRoot(item);
    return m_root == "/" && !below.empty() ? below : m_root + below;
}

std::string FolderTree::GetSelectedPath()
{
    const wxTreeCursor selected = GetSelection();
    return selected.IsOk() ? PathOf(selected.item) : std::string();
}

void FolderTree::SelectPath(const std::string& path)
{
    // The names below the root, the deepest first.
    std::vector<std::string> names;
    std::string level = path;
    for (; level.size() > m_root.size(); level = ParentPath(level))
        names.push_back(LastName(level));

    wxTreeItemId item = GetRootItem();
    if (level == m_root) {
        for (auto name = names.rbegin(); name != names.rend(); ++name) {
            const wxTreeItemId next = FindSubfolder(item, *name);
            if (!next.IsOk())
                break;
            item = next;
        }
    }
    SelectItem(item);
    EnsureVisible(item);
}

bool FolderTree::SelectSubfolder(const std::string& name)
{
    const wxTreeItemId selected = GetSelection().item;
    wxTreeItemId subfolder = FindSubfolder(selected, name);
    if (!subfolder.IsOk()) {
        Refill(selected);  // the subfolder may have been made after the tree read the folder
        subfolder = FindSubfolder(selected, name);
    }
    if (!subfolder.IsOk())
        return false;
    SelectItem(subfolder);
    EnsureVisible(subfolder);
    return true;
}

bool FolderTree::SelectParent()
{
    const wxTreeCursor selected = GetSelection();
    if (!selected.IsOk() || selected.item == GetRootItem())
        return false;
    const wxTreeItemId parent = selected.GetParent().item;
    SelectItem(parent);
    EnsureVisible(parent);
    return true;
}

void FolderTree::ShowColour(const wxColour& colour)
{
    Colour(GetSelection().item, colour);
}

void FolderTree::Reread()
{
    const wxWindowUpdateLocker frozen(this);
    const std::string selected = GetSelectedPath();
    std::vector<wxTreeItemId> rest{GetRootItem()};
    while (!rest.empty()) {
        const wxTreeItemId item = rest.back();
        rest.pop_back();
        if (GetChildrenCount(item, false) > 0 || IsExpanded(item))
            Refill(item);
        const std::vector<wxTreeItemId> children = ChildrenOf(item);
        rest.insert(rest.end(), children.begin(), children.end());
    }
    if (!GetSelection().IsOk())
        SelectPath(selected);
}

void FolderTree::SaveExpanded()
{
    wxTreeCursor root(this, GetRootItem());
    m_namesPaths = true;
    wxON_BLOCK_EXIT_SET(m_namesPaths, false);
    SaveState(root);
}

void FolderTree::LoadExpanded()
{
    const wxWindowUpdateLocker frozen(this);
    wxTreeCursor root(this, GetRootItem());
    m_namesPaths = true;
    wxON_BLOCK_EXIT_SET(m_namesPaths, false);
    LoadState(root);
}

void FolderTree::ForgetExpanded(const std::string& root)
{
    CLocalRegStore::DeleteProfile(L"TreeControlState", TextFromPath(root).c_str());
}

void FolderTree::OnItemExpanding(const wxTreeCursor& item)
{
    Fill(item.item);
}

wxString FolderTree::GetItemText(const wxTreeItemId& item) const
{
    if (!m_namesPaths)
        return wxHandyTreeCtrl::GetItemText(item);
    const std::string path = PathBelowRoot(item);
    return TextFromPath(path.empty() ? "/" : path);
}

void FolderTree::Fill(const wxTreeItemId& item)
{
    if (GetChildrenCount(item, false) == 0)
        Refill(item);
}

// Makes the children of an item match the file system, in sorted order.
void FolderTree::Refill(const wxTreeItemId& item)
{
    const wxWindowUpdateLocker frozen(this);
    const std::vector<Subfolder> subfolders = ReadSubfolders(PathOf(item));
    const std::vector<wxTreeItemId> before = ChildrenOf(item);
    auto old = before.begin();
    wxTreeItemId last;
    for (const Subfolder& subfolder : subfolders) {
        while (old != before.end() && StandsBefore(NameOf(*old), subfolder))
            Delete(*old++);
        if (old != before.end() && NameOf(*old) == subfolder.name)
            last = *old++;
        else if (old == before.end())
            last = AppendItem(item, DisplayText(subfolder.name));
        else if (last.IsOk())
            last = InsertItem(item, last, DisplayText(subfolder.name));
        else
            last = PrependItem(item, DisplayText(subfolder.name));
        Dress(last, subfolder);
    }
    while (old != before.end())
        Delete(*old++);
    SetItemHasChildren(item, !subfolders.empty());
}

// Sets the data, the images, the colour and the button of a folder's item.
void FolderTree::Dress(const wxTreeItemId& item, const Subfolder& folder)
{
    wxTreeCursor cursor(this, item);
    if (cursor.GetData() < 0) {
        m_names.push_back(folder.name);
        cursor.SetData(static_cast<int>(m_names.size()) - 1);
    }
    cursor.SetImage(folder.readable ? m_images.folder : m_images.unreadable, wxTreeItemIcon_Normal);
    cursor.SetImage(folder.readable ? m_images.open : m_images.unreadable, wxTreeItemIcon_Expanded);
    Colour(item, browser_settings::LoadFolderColour(PathOf(item)));
    // Set the button only if the item has no children. An item with children shows its button even if
    // folder.mayHaveSubfolders is false.
    if (GetChildrenCount(item, false) == 0)
        cursor.SetChildren(folder.mayHaveSubfolders);
}

void FolderTree::Colour(const wxTreeItemId& item, const wxColour& colour)
{
    if (colour.IsOk())
        wxTreeCursor(this, item).SetTextColour(ReadableOn(GetBackgroundColour(), colour).GetRGB());
    else if (GetItemTextColour(item).IsOk())
        SetItemTextColour(item, wxNullColour);
}

std::vector<wxTreeItemId> FolderTree::ChildrenOf(const wxTreeItemId& item) const
{
    std::vector<wxTreeItemId> children;
    wxTreeItemIdValue cookie;
    for (wxTreeItemId child = GetFirstChild(item, cookie); child.IsOk(); child = GetNextChild(item, cookie))
        children.push_back(child);
    return children;
}

wxTreeItemId FolderTree::FindSubfolder(const wxTreeItemId& item, const std::string& name)
{
    Fill(item);
    wxTreeItemIdValue cookie;
    wxTreeItemId child = GetFirstChild(item, cookie);
    while (child.IsOk() && NameOf(child) != name)
        child = GetNextChild(item, cookie);
    return child;
}

const std::string& FolderTree::NameOf(const wxTreeItemId& item) const
{
    const auto* data = static_cast<const wxGenericTreeItemData*>(GetItemData(item));
    return m_names[static_cast<std::size_t>(data->GetValue())];
}

// Returns a path such as "/Photos/2026 Lake"; empty for the root.
std::string FolderTree::PathBelowRoot(const wxTreeItemId& item) const
{
    std::string path;
    for (wxTreeItemId level = item; level != GetRootItem(); level = GetItemParent(level))
        path.insert(0, "/" + NameOf(level));
    return path;
}

}  // namespace gallery
