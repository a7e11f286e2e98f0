#ifndef FITTINGS_GALLERY_BROWSER_CONTENTS_LIST_H_
#define FITTINGS_GALLERY_BROWSER_CONTENTS_LIST_H_

#include <string>
#include <utility>
#include <vector>

#include <wx/dataview.h>

#include <gallery/folders/folder_listing.h>
#include <gallery/folders/folder_size.h>

namespace gallery {

class ContentsModel;

/// The entries of one folder with their sizes, sorted by the column whose header was clicked.
///
/// Rows are made as they are drawn, so that a folder of 100,000 entries costs no more than its reading and sorting.
class ContentsList : public wxDataViewCtrl
{
public:
    explicit ContentsList(wxWindow* parent);

    /// @name What changes the rows
    /// None of these sends a selection event, though the selected row may go.
    /// @{
    void SetEntries(std::vector<Entry> entries);

    /// Leaves out what is smaller than @a bytes, and what has no size; 0 leaves out nothing. Folders stay until they
    /// are added up.
    void SetMinimum(std::uint64_t bytes);

    /// Fills in what folders hold, as far as they are listed, and leaves out those that prove too small. The order of
    /// the rows stays until SortBy().
    void SetFolderSizes(const std::vector<std::pair<std::string, FolderSum>>& sums);
    /// @}

    /// Those that are shown, in their order.
    std::vector<Entry> GetEntriesInOrder() const;

    unsigned CountRows() const;
    const Entry& GetEntry(unsigned row) const;

    /// Null when nothing is selected.
    const Entry* GetSelectedEntry() const;

    /// Null when the item is none.
    const Entry* EntryOf(const wxDataViewItem& item) const;
    wxDataViewItem ItemOf(unsigned row) const;

    /// Selects the entry @a name and scrolls to it, if it is shown.
    void SelectEntry(const std::string& name);

    SortOrder GetSortOrder() const { return m_order; }
    void SortBy(SortOrder order);

    /// @name Column widths, the name column's apart: it takes what the others leave
    /// @{
    std::vector<int> GetColumnWidths() const;
    void SetColumnWidths(const std::vector<int>& widths);
    /// @}

    /// Brings widths and order of the last session back, where there was one, and has those of this one kept.
    void RememberColumns();

private:
    void OnColumnSorted(wxDataViewEvent& event);
    void SortByColumn(const wxDataViewColumn* column);
    void ShowOrder();

    wxObjectDataPtr<ContentsModel> m_model;
    SortOrder m_order;
};

}  // namespace gallery

#endif
