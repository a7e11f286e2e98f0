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
/// The texts of a row are made when the row is drawn. Showing a folder of 100,000 entries therefore takes little more
/// time than reading and sorting it.
class ContentsList : public wxDataViewCtrl
{
public:
    explicit ContentsList(wxWindow* parent);

    /// @name Operations that change the rows
    /// None of these sends a selection event, even when the selected row is removed.
    /// @{
    void SetEntries(std::vector<Entry> entries);

    /// Hides entries smaller than @a bytes, and entries that have no size, such as links. A folder whose size is not
    /// known yet stays. With 0, hides nothing.
    void SetMinimum(std::uint64_t bytes);

    /// Sets the sizes of listed folders, and hides the folders that are smaller than the minimum. The rows keep their
    /// order until SortBy() is called.
    void SetFolderSizes(const std::vector<std::pair<std::string, FolderSum>>& sums);
    /// @}

    /// Returns the entries that are shown, in their order.
    std::vector<Entry> GetEntriesInOrder() const;

    unsigned CountRows() const;
    const Entry& GetEntry(unsigned row) const;

    /// Returns the selected entry; null when nothing is selected.
    const Entry* GetSelectedEntry() const;

    /// Returns the entry of an item; null when the item is invalid.
    const Entry* EntryOf(const wxDataViewItem& item) const;
    wxDataViewItem ItemOf(unsigned row) const;

    /// If the entry @a name is shown, selects it and scrolls to it.
    void SelectEntry(const std::string& name);

    SortOrder GetSortOrder() const { return m_order; }
    void SortBy(SortOrder order);

    /// @name The widths of all columns except the name column, which takes the rest of the width
    /// @{
    std::vector<int> GetColumnWidths() const;
    void SetColumnWidths(const std::vector<int>& widths);
    /// @}

    /// Restores the column widths and the sort order of the last session, if they are stored. When the list is
    /// destroyed, it stores its widths and its order for the next session.
    void RememberColumns();

private:
    void SortByColumn(const wxDataViewColumn* column);
    void ShowOrder();

    wxObjectDataPtr<ContentsModel> m_model;
    SortOrder m_order;
};

}  // namespace gallery

#endif
