#include <tests/dialogs/centring.h>
#include <tests/support/replaced_function.h>

#include <wx/dirdlg.h>
#include <wx/filedlg.h>

std::vector<int>& CentredDialogs()
{
    static std::vector<int> directions;
    return directions;
}

// Replaces the toolkit's function: records the direction for a file or folder dialog, and calls the original.
void wxTopLevelWindowBase::DoCentre(int direction)
{
    if (dynamic_cast<wxDirDialog*>(this) || dynamic_cast<wxFileDialog*>(this))
        CentredDialogs().push_back(direction);
    static const auto original =
        ReplacedFunction<void(wxTopLevelWindowBase*, int)>("_ZN20wxTopLevelWindowBase8DoCentreEi");
    original(this, direction);
}
