// Amounts of money: only such can be typed, and each one paid is shown the way amounts are read best.

#include <wx/wx.h>

#include <fittings/numedit/num_validator.h>
#include <fittings/numedit/number_edit_utils.h>

class PaymentsFrame : public wxFrame
{
public:
    PaymentsFrame() : wxFrame(nullptr, wxID_ANY, "Payments"), m_format(eFixedFormat)
    {
        m_format.m_bHasMin = true;
        m_format.m_dMin = 0.01;
        m_format.m_strTemplate = L"%s EUR";

        auto* panel = new wxPanel(this);
        panel->SetExtraStyle(wxWS_EX_VALIDATE_RECURSIVELY);
        auto* field = new wxTextCtrl(panel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER,
                                     wxNumValidator(m_format, &m_amount));
        auto* list = new wxListBox(panel, wxID_ANY);
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(new wxStaticText(panel, wxID_ANY, "Amount, and Enter to pay it:"), wxSizerFlags().Border());
        sizer->Add(field, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT));
        sizer->Add(list, wxSizerFlags(1).Expand().Border());
        panel->SetSizer(sizer);
        field->SetFocus();

        field->Bind(wxEVT_TEXT_ENTER, [this, panel, field, list](wxCommandEvent&) {
            if (!panel->Validate() || !panel->TransferDataFromWindow()) {
                SetTitle("Not paid: at least 0.01");
                return;
            }
            const wxString shown = CNumberEditUtils::FormatControlText(m_amount.wc_str(), m_format);
            list->Append(shown);
            SetTitle("Paid " + shown);
            field->Clear();
        });
    }

private:
    CNumberFormat m_format;
    wxString m_amount;
};

class PaymentsApp : public wxApp
{
    bool OnInit() override { return (new PaymentsFrame)->Show(); }
};
wxIMPLEMENT_APP(PaymentsApp);
