// Payments: the field accepts only amounts of money. The window shows each payment like 1,234.50 EUR.

#include <wx/wx.h>

#include <fittings/numedit/number_ctrl.h>
#include <fittings/numedit/number_edit_utils.h>

class PaymentsFrame : public wxFrame
{
public:
    PaymentsFrame() : wxFrame(nullptr, wxID_ANY, "Payments")
    {
        CNumberFormat format(eFixedFormat);
        format.m_bHasMin = true;
        format.m_dMin = 0.01;
        format.m_strTemplate = L"%s EUR";

        auto* panel = new wxPanel(this);
        auto* field = new wxNumberCtrl(panel, wxID_ANY, format, wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER);
        auto* list = new wxListBox(panel, wxID_ANY);
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(new wxStaticText(panel, wxID_ANY, "Amount, and Enter to pay it:"), wxSizerFlags().Border());
        sizer->Add(field, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT));
        sizer->Add(list, wxSizerFlags(1).Expand().Border());
        panel->SetSizer(sizer);
        field->SetFocus();

        field->Bind(wxEVT_TEXT_ENTER, [this, field, list](wxCommandEvent&) {
            if (field->IsEmpty() || !field->Validate()) {
                SetTitle("Not paid: at least 0.01");
                return;
            }
            const wxString amount = field->GetDecimal();
            const wxString shown = CNumberEditUtils::FormatControlText(amount.wc_str(), field->GetFormat());
            list->Append(shown);
            SetTitle("Paid " + shown);
            field->Clear();
        });
    }
};

class PaymentsApp : public wxApp
{
    bool OnInit() override { return (new PaymentsFrame)->Show(); }
};
wxIMPLEMENT_APP(PaymentsApp);
