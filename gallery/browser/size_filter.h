#ifndef FITTINGS_GALLERY_BROWSER_SIZE_FILTER_H_
#define FITTINGS_GALLERY_BROWSER_SIZE_FILTER_H_

#include <cstdint>

#include <wx/event.h>
#include <wx/panel.h>

#include <fittings/numedit/number_ctrl.h>

namespace gallery {

/// Sent by a SizeFilter when its text changes.
wxDECLARE_EVENT(EVT_SIZE_FILTER_CHANGED, wxCommandEvent);

/// The field "At least ___ MB", which the user may leave empty. Escape empties the field.
class SizeFilter : public wxPanel
{
public:
    explicit SizeFilter(wxWindow* parent);

    /// Returns the size in bytes; 0 when the field is empty or does not contain an acceptable number.
    std::uint64_t GetMinimum() const;

    /// Returns a text such as "1,234.5 MB", in the locale's form.
    wxString GetText() const;

    /// @name The number in the field, with a dot as the decimal point in every locale
    /// @{
    wxString GetMegabytes() const;
    void SetMegabytes(const wxString& megabytes);
    /// @}

    wxNumberCtrl* GetField() const { return m_field; }

private:
    wxNumberCtrl* m_field;
};

}  // namespace gallery

#endif
