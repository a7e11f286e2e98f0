// An order: each field is bound to a variable of the program, and checked when the order is sent.

#include <wx/wx.h>

#include <fittings/numedit/decimal_validator.h>
#include <fittings/numedit/number_ctrl.h>

class OrderFrame : public wxFrame
{
public:
    OrderFrame() : wxFrame(nullptr, wxID_ANY, "Order")
    {
        auto* panel = new wxPanel(this);
        auto* sizer = new wxFlexGridSizer(2, wxSize(10, 10));
        AddField(panel, sizer, "&Count:", 0, wxDecimalValidator(&m_count))->SetRange(1, 99);
        AddField(panel, sizer, "&Price:", 2, wxDecimalValidator(&m_price))->SetRange(0.01, 5000);
        auto* send = new wxButton(panel, wxID_ANY, "&Send");
        sizer->AddSpacer(0);
        sizer->Add(send);
        auto* margin = new wxBoxSizer(wxVERTICAL);
        margin->Add(sizer, wxSizerFlags().Border(wxALL, 10));
        panel->SetSizer(margin);
        panel->TransferDataToWindow();
        panel->SetFocus();

        send->Bind(wxEVT_BUTTON, [this, panel](wxCommandEvent&) {
            // Validate() moves the focus to the first field that is wrong. The field's tooltip says why.
            if (panel->Validate() && panel->TransferDataFromWindow())
                SetTitle(wxString::Format("Ordered %d for %.2f", m_count, m_count * m_price));
            else
                SetTitle("Not ordered");
        });
    }

private:
    static wxNumberCtrl* AddField(wxPanel* panel, wxSizer* sizer, const wxString& label, int decimals,
                                  const wxDecimalValidator& validator)
    {
        sizer->Add(new wxStaticText(panel, wxID_ANY, label), wxSizerFlags().CenterVertical());
        auto* field = new wxNumberCtrl(panel, wxID_ANY, wxNumberCtrl::FromLocale(decimals), wxDefaultPosition,
                                       wxDefaultSize, 0, validator);
        sizer->Add(field);
        return field;
    }

    int m_count = 1;
    double m_price = 19.5;
};

class OrderApp : public wxApp
{
    bool OnInit() override { return (new OrderFrame)->Show(); }
};
wxIMPLEMENT_APP(OrderApp);
