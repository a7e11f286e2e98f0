#ifndef FITTINGS_GALLERY_NUMBERS_NUMBERS_PAGE_H_
#define FITTINGS_GALLERY_NUMBERS_NUMBERS_PAGE_H_

#include <vector>

#include <wx/scrolwin.h>
#include <wx/string.h>

class wxBoxSizer;
class wxButton;
class wxCheckBox;
class wxNumberCtrl;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

namespace gallery {

class NumberFormatFields;

/// A page with a field for a number, controls for its format, and the results of formatting and checking the number. It
/// also has a wxNumberCtrl with the same format.
///
/// The constructor restores the numbers and the format that SaveSettings() last saved.
class NumbersPage : public wxScrolledWindow
{
public:
    explicit NumbersPage(wxWindow* parent);

    NumberFormatFields* GetFields() const { return m_fields; }

    /// Returns the number that the user kept last with the button "Check and keep".
    const wxString& GetKept() const { return m_kept; }

    void SaveSettings() const;

private:
    void LoadSettings();
    wxSizer* MakeTrial();
    wxSizer* MakeResults();
    wxSizer* MakeControl();
    void Arrange();
    void UseFormat();
    void ShowResults();
    void ShowControlNumber();
    void OnKeep();
    void OnBringBack();

    wxBoxSizer* m_columns = nullptr;
    wxBoxSizer* m_controlColumns = nullptr;
    NumberFormatFields* m_fields = nullptr;
    wxTextCtrl* m_number = nullptr;
    wxCheckBox* m_validates = nullptr;
    wxButton* m_keep = nullptr;
    wxButton* m_bringBack = nullptr;
    wxStaticText* m_keptText = nullptr;
    std::vector<wxStaticText*> m_results;
    wxNumberCtrl* m_control = nullptr;
    wxStaticText* m_controlNumber = nullptr;
    wxString m_kept;
};

}  // namespace gallery

#endif
