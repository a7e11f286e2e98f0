#include <gallery/browser/size_filter.h>

#include <wx/sizer.h>
#include <wx/stattext.h>

#include <fittings/numedit/number_ctrl.h>
#include <fittings/numedit/number_edit_utils.h>

#include <gallery/folders/native_text.h>
#include <gallery/pages/page_layout.h>
#include <gallery/pages/window_helpers.h>

namespace gallery {

wxDEFINE_EVENT(EVT_SIZE_FILTER_CHANGED, wxCommandEvent);

namespace {

constexpr int kBytesInMegabyte = 1000000;

// Returns a format for a number of megabytes. Nine integer digits allow sizes below one petabyte. Six decimals allow
// single bytes.
CNumberFormat MegabytesFormat()
{
    CNumberFormat format = GroupingFormat();
    format.m_bAllowSign = false;
    format.m_bHasDecimals = true;
    format.m_nDecimals = 6;
    format.m_bHasMaxIntDigits = true;
    format.m_nMaxIntDigits = 9;
    return format;
}

}  // namespace

SizeFilter::SizeFilter(wxWindow* parent) : wxPanel(parent)
{
    SetName("SizeFilter");
    auto* label = new wxStaticText(this, wxID_ANY, "At &least");
    m_field = new wxNumberCtrl(this, wxID_ANY, MegabytesFormat());
    m_field->SetName("AtLeast");
    m_field->SetInitialSize(m_field->GetSizeFromTextSize(m_field->GetTextExtent("0000000")));
    m_field->SetToolTip("Leaves out of the list what is smaller");
    m_field->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { TellChange(*this, EVT_SIZE_FILTER_CHANGED); });
    m_field->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE && !m_field->IsEmpty())
            m_field->Clear();
        else
            event.Skip();
    });

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags part = wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(kGap));
    row->Add(label, part);
    row->Add(m_field, part);
    row->Add(new wxStaticText(this, wxID_ANY, "MB"), wxSizerFlags().CentreVertical());
    SetSizer(row);
}

std::uint64_t SizeFilter::GetMinimum() const
{
    double megabytes = 0;
    if (!m_field->IsAcceptable() || !m_field->GetNumber(&megabytes))
        return 0;
    return static_cast<std::uint64_t>(std::llround(megabytes * kBytesInMegabyte));
}

wxString SizeFilter::GetText() const
{
    CNumberFormat format = MegabytesFormat();
    format.m_strTemplate = L"%s MB";
    return CNumberEditUtils::FormatControlText(m_field->GetDecimal().wc_str(), format);
}

wxString SizeFilter::GetMegabytes() const
{
    return m_field->GetDecimal();
}

void SizeFilter::SetMegabytes(const wxString& megabytes)
{
    if (m_field->SetDecimal(megabytes))
        TellChange(*this, EVT_SIZE_FILTER_CHANGED);
}

}  // namespace gallery
