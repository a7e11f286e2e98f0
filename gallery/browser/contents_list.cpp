#include <gallery/browser/contents_list.h>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <gtk/gtk.h>
#include <wx/artprov.h>

#include <fittings/config/persistence.h>

#include <gallery/folders/native_text.h>
#include <gallery/pages/window_helpers.h>

namespace gallery {

namespace {

constexpr int kNameCharacters = 24;

unsigned IndexOf(SortColumn column)
{
    return static_cast<unsigned>(column);
}

// Puts @a pixels of space on both sides of each cell, so that the texts line up with their header. Shortens long texts
// in the middle.
void Space(GtkTreeViewColumn* column, int pixels)
{
    GList* cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(column));
    for (const GList* cell = cells; cell; cell = cell->next) {
        g_object_set(cell->data, "xpad", pixels, nullptr);
        if (GTK_IS_CELL_RENDERER_TEXT(cell->data))
            g_object_set(cell->data, "ellipsize", PANGO_ELLIPSIZE_MIDDLE, nullptr);
    }
    g_list_free(cells);
}

wxBitmapBundle Icon(const wxArtID& id)
{
    return wxArtProvider::GetBitmapBundle(id, wxART_OTHER, wxSize(16, 16));
}

}  // namespace

class ContentsModel : public wxDataViewVirtualListModel
{
public:
    ContentsModel()
        : m_folder(Icon(wxART_FOLDER)), m_file(Icon(wxART_NORMAL_FILE)), m_program(Icon(wxART_EXECUTABLE_FILE)),
          m_link(Icon("emblem-symbolic-link"))
    {
    }

    void SetEntries(std::vector<Entry> entries, SortOrder order)
    {
        m_folders.clear();
        m_entries = std::move(entries);
        Sort(order);
        Reset(static_cast<unsigned>(m_positions.size()));
    }

    void SetMinimum(std::uint64_t bytes)
    {
        m_minimum = bytes;
        m_positions = LargeOnes();
        Reset(static_cast<unsigned>(m_positions.size()));
    }

    // Removes the rows of the entries that are now known to be too small. Does not call Reset(): after a reset, GTK
    // redraws the list with a delay.
    void RemoveSmallOnes()
    {
        wxArrayInt rows;
        for (std::size_t row = 0; row < m_positions.size(); ++row) {
            if (!IsLarge(m_entries[m_positions[row]]))
                rows.push_back(static_cast<int>(row));
        }
        m_positions = LargeOnes();
        if (!rows.empty())
            RowsDeleted(rows);
    }

    // Sets the size of a folder. The list shows the size when it draws the folder's row again.
    void SetFolderSize(const std::string& name, std::uint64_t size)
    {
        if (m_folders.empty()) {
            for (std::size_t i = 0; i < m_entries.size(); ++i) {
                if (m_entries[i].kind == EntryKind::Folder)
                    m_folders.emplace(m_entries[i].name, i);
            }
        }
        const auto found = m_folders.find(name);
        if (found != m_folders.end()) {
            m_entries[found->second].size = size;
            m_entries[found->second].summed = true;
        }
    }

    // Changes only the order of the rows. The caller must redraw them.
    void Sort(SortOrder order)
    {
        m_sorted = SortedPositions(m_entries, order);
        m_positions = LargeOnes();
    }

    const Entry& At(unsigned row) const { return m_entries[m_positions[row]]; }

    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override
    {
        const Entry& entry = At(row);
        switch (static_cast<SortColumn>(column)) {
        case SortColumn::Name:
            value << wxDataViewIconText(LabelOf(entry), IconOf(entry));
            break;
        case SortColumn::Size:
            value = entry.HasSize() ? HumanSize(entry.size) : wxString();
            break;
        case SortColumn::Type:
            value = DisplayText(entry.type);
            break;
        case SortColumn::Modified:
            value = entry.known ? HumanTime(entry.modified) : wxString();
            break;
        }
    }

    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

private:
    // Returns the positions of the entries that are large enough to be shown, in the current order.
    std::vector<std::uint32_t> LargeOnes() const
    {
        std::vector<std::uint32_t> positions;
        std::copy_if(m_sorted.begin(), m_sorted.end(), std::back_inserter(positions),
                     [this](std::uint32_t position) { return IsLarge(m_entries[position]); });
        return positions;
    }

    bool IsLarge(const Entry& entry) const
    {
        const bool unknown = entry.kind == EntryKind::Folder && !entry.summed;
        return m_minimum == 0 || unknown || (entry.HasSize() && entry.size >= m_minimum);
    }

    static wxString LabelOf(const Entry& entry)
    {
        wxString label = DisplayText(entry.name);
        if (!entry.target.empty())
            label << L" \u2192 " << DisplayText(entry.target);
        return label;
    }

    const wxBitmapBundle& IconOf(const Entry& entry) const
    {
        if (entry.kind == EntryKind::Folder)
            return m_folder;
        if (entry.kind == EntryKind::Link)
            return m_link;
        return entry.type == "Program" ? m_program : m_file;
    }

    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_sorted;
    std::vector<std::uint32_t> m_positions;  // The elements of m_sorted that are shown.
    std::uint64_t m_minimum = 0;
    // Maps the name of a folder to its index in m_entries. SetFolderSize() fills it.
    std::unordered_map<std::string_view, std::size_t> m_folders;
    wxBitmapBundle m_folder, m_file, m_program, m_link;
};

ContentsList::ContentsList(wxWindow* parent)
    : wxDataViewCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxDV_SINGLE | wxDV_ROW_LINES | wxBORDER_NONE),
      m_model(new ContentsModel)
{
    SetName("Contents");
    SetAccessibleName(this, "Contents of the folder");
    SetMinSize(FromDIP(wxSize(200, 80)));
    AssociateModel(m_model.get());

    const int flags = wxDATAVIEW_COL_RESIZABLE | wxDATAVIEW_COL_SORTABLE;
    const int character = GetCharWidth();
    AppendIconTextColumn("Name", IndexOf(SortColumn::Name), wxDATAVIEW_CELL_INERT, kNameCharacters * character,
                         wxALIGN_LEFT, flags);
    AppendTextColumn("Size", IndexOf(SortColumn::Size), wxDATAVIEW_CELL_INERT, 12 * character, wxALIGN_RIGHT, flags);
    AppendTextColumn("Kind", IndexOf(SortColumn::Type), wxDATAVIEW_CELL_INERT, 14 * character, wxALIGN_LEFT, flags);
    AppendTextColumn("Modified", IndexOf(SortColumn::Modified), wxDATAVIEW_CELL_INERT, 20 * character, wxALIGN_LEFT,
                     flags);

    for (unsigned i = 0; i < GetColumnCount(); ++i)
        Space(GTK_TREE_VIEW_COLUMN(GetColumn(i)->GetGtkHandle()), FromDIP(6));
    // The name column takes the rest of the width.
    GtkTreeViewColumn* name = GTK_TREE_VIEW_COLUMN(GetColumn(IndexOf(SortColumn::Name))->GetGtkHandle());
    gtk_tree_view_column_set_expand(name, TRUE);

    Bind(wxEVT_DATAVIEW_COLUMN_SORTED, [this](wxDataViewEvent& event) { SortByColumn(event.GetDataViewColumn()); });
    ShowOrder();
}

void ContentsList::SetEntries(std::vector<Entry> entries)
{
    const wxEventBlocker quiet(this, wxEVT_DATAVIEW_SELECTION_CHANGED);
    m_model->SetEntries(std::move(entries), m_order);
}

void ContentsList::SetFolderSizes(const std::vector<std::pair<std::string, FolderSum>>& sums)
{
    if (sums.empty())
        return;
    for (const auto& [name, sum] : sums)
        m_model->SetFolderSize(name, sum.bytes);
    {
        // Send no selection events: the rows are removed one by one, and a handler must not ask for the selected row
        // before all are removed.
        const wxEventBlocker quiet(this, wxEVT_DATAVIEW_SELECTION_CHANGED);
        m_model->RemoveSmallOnes();
    }
    // Redraw GTK's view: Refresh() would redraw only the frame around the rows.
    gtk_widget_queue_draw(GtkGetTreeView());
}

void ContentsList::SetMinimum(std::uint64_t bytes)
{
    const wxEventBlocker quiet(this, wxEVT_DATAVIEW_SELECTION_CHANGED);
    const Entry* selected = GetSelectedEntry();
    m_model->SetMinimum(bytes);
    if (selected)
        SelectEntry(selected->name);
}

std::vector<Entry> ContentsList::GetEntriesInOrder() const
{
    std::vector<Entry> entries;
    for (unsigned row = 0; row < CountRows(); ++row)
        entries.push_back(GetEntry(row));
    return entries;
}

unsigned ContentsList::CountRows() const
{
    return m_model->GetCount();
}

const Entry& ContentsList::GetEntry(unsigned row) const
{
    return m_model->At(row);
}

const Entry* ContentsList::GetSelectedEntry() const
{
    return EntryOf(GetSelection());
}

const Entry* ContentsList::EntryOf(const wxDataViewItem& item) const
{
    return item.IsOk() ? &m_model->At(m_model->GetRow(item)) : nullptr;
}

wxDataViewItem ContentsList::ItemOf(unsigned row) const
{
    return m_model->GetItem(row);
}

void ContentsList::SelectEntry(const std::string& name)
{
    for (unsigned row = 0; row < CountRows(); ++row) {
        if (GetEntry(row).name == name) {
            const wxDataViewItem item = ItemOf(row);
            Select(item);
            EnsureVisible(item);
            return;
        }
    }
}

void ContentsList::SortBy(SortOrder order)
{
    const Entry* selected = GetSelectedEntry();
    m_order = order;
    m_model->Sort(order);
    if (selected)
        SelectEntry(selected->name);
    ShowOrder();
    Refresh();
}

// Sorts by @a column in the order that its header shows; null changes nothing.
void ContentsList::SortByColumn(const wxDataViewColumn* column)
{
    if (column)
        SortBy({static_cast<SortColumn>(column->GetModelColumn()), column->IsSortOrderAscending()});
}

// Puts the arrow into the header of the column that the rows are sorted by.
void ContentsList::ShowOrder()
{
    GetColumn(IndexOf(m_order.column))->SetSortOrder(m_order.ascending);
}

std::vector<int> ContentsList::GetColumnWidths() const
{
    std::vector<int> widths;
    for (unsigned i = 1; i < GetColumnCount(); ++i)
        widths.push_back(GetColumn(i)->GetWidth());
    return widths;
}

void ContentsList::SetColumnWidths(const std::vector<int>& widths)
{
    for (unsigned i = 1; i < GetColumnCount() && i <= widths.size(); ++i)
        GetColumn(i)->SetWidth(widths[i - 1]);
}

void ContentsList::RememberColumns()
{
    wxPersistentRegisterAndRestore(this, GetName());
    // Give the name column its initial width again. GTK takes the set width as the column's minimum: with the width
    // from a larger window, the columns may not fit into this one.
    GetColumn(IndexOf(SortColumn::Name))->SetWidth(kNameCharacters * GetCharWidth());
    SortByColumn(GetSortingColumn());
}

}  // namespace gallery
