// The examples of the number control in the public headers and in docs, word for word.

#include <gtest/gtest.h>

#include <wx/wx.h>

#include <fittings/numedit/decimal_validator.h>
#include <fittings/numedit/number_ctrl.h>
#include <tests/support/gui.h>

namespace {

class WeightFrame : public wxFrame
{
public:
    WeightFrame() : wxFrame(nullptr, wxID_ANY, "Weight")
    {
        auto* const weight = new wxNumberCtrl(this, wxID_ANY, wxNumberCtrl::FromLocale(3));
        weight->SetRange(0, 250);
        weight->SetNumber(72.5);
        weight->Bind(wxEVT_NUMBER_CHANGED, [this](wxCommandEvent&) { ShowWeight(); });
        field = weight;
    }

    void ShowWeight() { SetTitle(field->GetDecimal()); }

    wxNumberCtrl* field;
};

TEST(NumberExamples, ShowAWeight)
{
    auto* const frame = new WeightFrame;
    EXPECT_EQ(frame->field->GetValue(), "72.500");
    frame->field->SetValue("80");
    DestroyNow(frame);
}

class PriceDialog : public wxDialog
{
public:
    PriceDialog() : wxDialog(nullptr, wxID_ANY, "Price")
    {
        wxDialog& dialog = *this;
        new wxNumberCtrl(&dialog, wxID_ANY, wxNumberCtrl::FromLocale(), wxDefaultPosition, wxDefaultSize, 0,
                         wxDecimalValidator(&m_price));
    }

    double m_price = 9.95;
};

TEST(NumberExamples, MoveAPrice)
{
    PriceDialog dialog;
    ASSERT_TRUE(dialog.TransferDataToWindow());
    auto* const field = dynamic_cast<wxNumberCtrl*>(dialog.GetChildren().front());
    EXPECT_EQ(field->GetValue(), "9.95");
    field->SetNumber(7);
    EXPECT_TRUE(dialog.TransferDataFromWindow());
    EXPECT_EQ(dialog.m_price, 7);
}

wxNumberCtrl* AddPrice(wxWindow* parent, double* price)
{
    auto* const field = new wxNumberCtrl(parent, wxID_ANY, wxNumberCtrl::FromLocale(2), wxDefaultPosition,
                                         wxDefaultSize, 0, wxDecimalValidator(price));
    field->SetRange(0, 99999);
    return field;
}

TEST(NumberExamples, AddAPrice)
{
    wxDialog dialog(nullptr, wxID_ANY, "Price");
    double price = 1234.5;
    wxNumberCtrl* const field = AddPrice(&dialog, &price);
    ASSERT_TRUE(dialog.TransferDataToWindow());
    EXPECT_EQ(field->GetDecimal(), "1234.5");
    field->SetNumber(100000);
    EXPECT_FALSE(dialog.Validate());
}

}  // namespace
