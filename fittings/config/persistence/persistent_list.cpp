#include <fittings/config/persistence.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <vector>

#include <wx/arrstr.h>

#include <fittings/config/persistence/ancestor_watch.h>

namespace {

constexpr long kWidest = 32767;

wxString ToText(const std::vector<int>& numbers)
{
    wxString text;
    for (const int number : numbers)
        text << (text.empty() ? "" : ";") << number;
    return text;
}

// Returns the numbers in a text: one number for each column, each from 0 to @a most. Returns none for any other text.
std::optional<std::vector<int>> FromText(const wxString& text, std::size_t columns, long most)
{
    std::vector<int> numbers;
    for (const wxString& field : wxSplit(text, ';', '\0')) {
        long number = 0;
        if (!field.ToLong(&number) || number < 0 || number > most)
            return std::nullopt;
        numbers.push_back(static_cast<int>(number));
    }
    if (numbers.size() != columns)
        return std::nullopt;
    return numbers;
}

bool HasEachOnce(std::vector<int> order)
{
    std::sort(order.begin(), order.end());
    std::vector<int> all(order.size());
    std::iota(all.begin(), all.end(), 0);
    return order == all;
}

// Returns the list. Returns null if the list was deleted without Destroy(): by then, only its base class is left.
wxListCtrl* ListOf(wxWindow* window)
{
    return dynamic_cast<wxListCtrl*>(window);
}

}  // namespace

wxPersistentListCtrl::wxPersistentListCtrl(wxListCtrl* list)
    : wxPersistentWindow(list),
      m_watch(std::make_unique<fittings::AncestorWatch>(*list, [this] { m_state = GetState(); }))
{
}

wxPersistentListCtrl::~wxPersistentListCtrl() = default;

void wxPersistentListCtrl::Save() const
{
    const auto state = m_state ? m_state : GetState();
    if (!state)
        return;
    SaveValue("Widths", state->widths);
    if (!state->order.empty())
        SaveValue("Order", state->order);
}

bool wxPersistentListCtrl::Restore()
{
    wxListCtrl* const list = ListOf(GetWindow());
    wxString text;
    if (!list || !list->InReportView() || !RestoreValue("Widths", &text))
        return false;
    const auto columns = static_cast<std::size_t>(list->GetColumnCount());
    const auto widths = FromText(text, columns, kWidest);
    if (!widths)
        return false;
    for (int column = 0; column < list->GetColumnCount(); ++column)
        list->SetColumnWidth(column, (*widths)[static_cast<std::size_t>(column)]);
    if (RestoreValue("Order", &text)) {
        const auto order = FromText(text, columns, kWidest);
        if (order && HasEachOnce(*order))
            list->SetColumnsOrder(wxArrayInt(order->begin(), order->end()));
    }
    return true;
}

wxString wxPersistentListCtrl::GetKind() const
{
    return "List";
}

std::optional<wxPersistentListCtrl::State> wxPersistentListCtrl::GetState() const
{
    const wxListCtrl* const list = ListOf(GetWindow());
    if (!list || !list->InReportView())
        return std::nullopt;
    std::vector<int> widths;
    widths.reserve(static_cast<std::size_t>(list->GetColumnCount()));
    for (int column = 0; column < list->GetColumnCount(); ++column)
        widths.push_back(list->GetColumnWidth(column));
    // Empty when the columns cannot be reordered.
    const wxArrayInt order = list->GetColumnsOrder();
    return State{ToText(widths), ToText(std::vector<int>(order.begin(), order.end()))};
}
