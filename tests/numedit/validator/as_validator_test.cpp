// The numeric validator behaves as the toolkit's validators do.

#include <fittings/numedit/num_validator.h>

#include <vector>

#include <gtest/gtest.h>

#include <wx/checkbox.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/valgen.h>
#include <wx/valtext.h>

#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/gui.h>

namespace {

// Three number fields, one below the other, in a panel of a dialog.
class Numbers : public testing::Test, protected KeysAndBells
{
protected:
    Numbers()
    {
        auto* const sizer = new wxBoxSizer(wxVERTICAL);
        for (std::size_t i = 0; i < 3; ++i) {
            fields[i] = new wxTextCtrl(panel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0,
                                       wxNumValidator(FixedFormat(), &values[i]));
            sizer->Add(fields[i]);
        }
        panel->SetSizer(sizer);
        auto* const all = new wxBoxSizer(wxVERTICAL);
        all->Add(panel, wxSizerFlags().Border());
        dialog->SetSizerAndFit(all);
    }

    ~Numbers() override { DestroyNow(dialog); }

    void Show()
    {
        ASSERT_TRUE(ShowAndSettle(dialog));
        Focus(0);
    }

    void Focus(std::size_t field)
    {
        fields[field]->SetFocus();
        ASSERT_TRUE(PumpUntil([&] { return fields[field]->HasFocus(); }));
        PumpPending();
    }

    void Fill(const wxString& first, const wxString& second, const wxString& third)
    {
        fields[0]->ChangeValue(first);
        fields[1]->ChangeValue(second);
        fields[2]->ChangeValue(third);
    }

    wxDialog* dialog = new wxDialog(nullptr, wxID_ANY, "Numbers", wxPoint(200, 200), wxDefaultSize,
                                    wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    wxPanel* panel = new wxPanel(dialog);
    wxString values[3] = {"1", "2", "3"};
    wxTextCtrl* fields[3];
};

// --- In a dialog -----------------------------------------------------------------------------------------------------

TEST_F(Numbers, AreAskedInOrderAsFarAsTheFirstBadOne)
{
    Show();
    Fill("1", "x", "y");
    std::vector<int> focused;
    for (int i = 0; i < 3; ++i) {
        fields[i]->Bind(wxEVT_SET_FOCUS, [&focused, i](wxFocusEvent& event) {
            focused.push_back(i);
            event.Skip();
        });
    }
    EXPECT_FALSE(dialog->Validate());
    EXPECT_TRUE(PumpUntil([&] { return fields[1]->HasFocus(); }));
    fields[1]->ChangeValue("2");
    EXPECT_FALSE(dialog->Validate());
    EXPECT_TRUE(PumpUntil([&] { return fields[2]->HasFocus(); }));
    // The field already has the focus, so it receives no further focus event.
    EXPECT_FALSE(dialog->Validate());
    PumpPending();
    fields[2]->ChangeValue("3");
    EXPECT_TRUE(dialog->Validate());
    EXPECT_EQ(focused, (std::vector<int>{1, 2}));
}

TEST_F(Numbers, AreTransferredAsFarAsTheFirstBadOne)
{
    Fill("10", "x", "30");
    EXPECT_FALSE(dialog->TransferDataFromWindow());
    EXPECT_EQ(values[0], "10");
    EXPECT_EQ(values[1], "2");
    EXPECT_EQ(values[2], "3");
}

TEST_F(Numbers, AreNotCheckedInADisabledPanel)
{
    Fill("x", "y", "z");
    panel->Disable();
    EXPECT_TRUE(dialog->Validate());
    panel->Enable();
    EXPECT_FALSE(dialog->Validate());
}

TEST_F(Numbers, AreCheckedWhereTheyAreHiddenOrCannotBeEdited)
{
    Fill("1", "x", "3");
    fields[1]->Hide();
    EXPECT_FALSE(dialog->Validate());
    fields[1]->Show();
    fields[1]->SetEditable(false);
    EXPECT_FALSE(dialog->Validate());
}

TEST_F(Numbers, AreCheckedOnEachPageOfANotebook)
{
    auto* const book = new wxNotebook(dialog, wxID_ANY);
    wxString texts[2] = {"1.5", "2.5"};
    wxTextCtrl* onPage[2];
    for (int i = 0; i < 2; ++i) {
        auto* const page = new wxPanel(book);
        onPage[i] = new wxTextCtrl(page, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0,
                                   wxNumValidator(FixedFormat(), &texts[i]));
        book->AddPage(page, "page", i == 0);
    }
    EXPECT_TRUE(dialog->TransferDataToWindow());
    EXPECT_EQ(onPage[1]->GetValue(), "2.5");
    onPage[1]->ChangeValue("1.234");
    EXPECT_FALSE(dialog->Validate());
    onPage[1]->ChangeValue("1.23");
    EXPECT_TRUE(dialog->Validate());
    EXPECT_TRUE(dialog->TransferDataFromWindow());
    EXPECT_EQ(texts[1], "1.23");
}

TEST_F(Numbers, StandBesideTheToolkitsValidators)
{
    wxString name = "name";
    bool checked = true;
    auto* const text = new wxTextCtrl(panel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0,
                                      wxTextValidator(wxFILTER_EMPTY, &name));
    auto* const box =
        new wxCheckBox(panel, wxID_ANY, "checked", wxDefaultPosition, wxDefaultSize, 0, wxGenericValidator(&checked));
    EXPECT_TRUE(dialog->TransferDataToWindow());
    EXPECT_EQ(fields[2]->GetValue(), "3");
    EXPECT_EQ(text->GetValue(), "name");
    EXPECT_TRUE(box->GetValue());
    fields[2]->ChangeValue("30");
    text->ChangeValue("other");
    box->SetValue(false);
    EXPECT_TRUE(dialog->Validate());
    EXPECT_TRUE(dialog->TransferDataFromWindow());
    EXPECT_EQ(values[2], "30");
    EXPECT_EQ(name, "other");
    EXPECT_FALSE(checked);
}

// --- On a control ----------------------------------------------------------------------------------------------------

TEST_F(Numbers, GiveTheHostTheKeysThatTheyTakeOnce)
{
    Show();
    std::vector<int> down, chars;
    int texts = 0;
    fields[0]->Bind(wxEVT_KEY_DOWN, [&](wxKeyEvent& event) {
        down.push_back(event.GetKeyCode());
        event.Skip();
    });
    fields[0]->Bind(wxEVT_CHAR, [&](wxKeyEvent& event) {
        chars.push_back(event.GetKeyCode());
        event.Skip();
    });
    fields[0]->Bind(wxEVT_TEXT, [&](wxCommandEvent&) { ++texts; });
    Type("1x2");
    EXPECT_EQ(fields[0]->GetValue(), "12");
    EXPECT_EQ(down, (std::vector<int>{'1', 'X', '2'}));
    EXPECT_EQ(chars, (std::vector<int>{'1', '2'}));
    EXPECT_EQ(texts, 2);
    EXPECT_EQ(BellsRung(), 1);
}

TEST_F(Numbers, LeaveAKeyThatTheHostTakesToIt)
{
    Show();
    fields[0]->Bind(wxEVT_CHAR, [&](wxKeyEvent& event) { event.Skip(event.GetKeyCode() != '1'); });
    Type("12");
    EXPECT_EQ(fields[0]->GetValue(), "2");
    EXPECT_EQ(BellsRung(), 0);
}

TEST_F(Numbers, LeaveTheLongestTextToTheControl)
{
    Show();
    fields[0]->SetMaxLength(2);
    int refused = 0;
    fields[0]->Bind(wxEVT_TEXT_MAXLEN, [&](wxCommandEvent&) { ++refused; });
    Type("123");
    EXPECT_EQ(fields[0]->GetValue(), "12");
    EXPECT_EQ(refused, 1);
    EXPECT_EQ(BellsRung(), 0);
}

TEST_F(Numbers, DoNotCheckWhatTheProgramSets)
{
    fields[0]->SetValue("x");
    fields[0]->AppendText("y");
    fields[0]->WriteText("z");
    EXPECT_EQ(fields[0]->GetValue().length(), 3u);
    fields[0]->Clear();
    EXPECT_EQ(fields[0]->GetValue(), "");
    EXPECT_EQ(BellsRung(), 0);
}

TEST_F(Numbers, GiveWayToAnotherValidator)
{
    Show();
    CNumberFormat whole(eFixedFormat);
    whole.m_bHasDecimals = false;
    wxString other = "7";
    fields[0]->SetValidator(wxNumValidator(whole, &other));
    Type("1.");
    EXPECT_EQ(fields[0]->GetValue(), "1");
    EXPECT_TRUE(dialog->TransferDataToWindow());
    EXPECT_EQ(fields[0]->GetValue(), "7");

    fields[0]->SetValidator(wxDefaultValidator);
    EXPECT_EQ(fields[0]->GetValidator(), nullptr);
    Focus(0);
    fields[0]->ChangeValue("");
    Type("x");
    EXPECT_EQ(fields[0]->GetValue(), "x");
    EXPECT_TRUE(dialog->Validate());
}

// The validator itself writes the keypad's point. This sends a text event, and the host's handler of this event
// replaces the validator.
TEST_F(Numbers, MayBeReplacedWhileTheyTakeAKey)
{
    Show();
    int replaced = 0;
    fields[0]->Bind(wxEVT_TEXT, [&](wxCommandEvent&) {
        ++replaced;
        fields[0]->SetValidator(wxNumValidator(FixedFormat(), &values[1]));
    });
    Type("1");
    Press(WXK_NUMPAD_DECIMAL);
    Type("2");
    EXPECT_EQ(fields[0]->GetValue(), "1.2");
    EXPECT_EQ(replaced, 3);
    EXPECT_TRUE(fields[0]->GetValidator()->TransferFromWindow());
    EXPECT_EQ(values[1], "1.2");
    EXPECT_EQ(values[0], "1");
}

TEST_F(Numbers, MayBeReplacedWhileTheyShowTheirText)
{
    fields[0]->Bind(wxEVT_TEXT,
                    [&](wxCommandEvent&) { fields[0]->SetValidator(wxNumValidator(FixedFormat(), &values[1])); });
    values[0] = "5";
    EXPECT_TRUE(fields[0]->GetValidator()->TransferToWindow());
    EXPECT_EQ(fields[0]->GetValue(), "5");
    EXPECT_TRUE(fields[0]->GetValidator()->TransferFromWindow());
    EXPECT_EQ(values[1], "5");
}

TEST_F(Numbers, GoWithTheirControlToAnotherWindow)
{
    Show();
    wxDialog other(nullptr, wxID_ANY, "Other", wxPoint(500, 200), wxSize(200, 150),
                   wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER);
    EXPECT_TRUE(fields[0]->Reparent(&other));
    ASSERT_TRUE(ShowAndSettle(&other));
    Focus(0);
    EXPECT_TRUE(other.TransferDataToWindow());
    EXPECT_EQ(fields[0]->GetValue(), "1");
    fields[0]->ChangeValue("");
    Type("4x");
    EXPECT_EQ(fields[0]->GetValue(), "4");
    EXPECT_TRUE(other.Validate());
    EXPECT_TRUE(other.TransferDataFromWindow());
    EXPECT_EQ(values[0], "4");
    fields[0]->ChangeValue("x");
    EXPECT_TRUE(dialog->Validate()) << "the field is no longer in this dialog";
    EXPECT_FALSE(other.Validate());
}

TEST_F(Numbers, AreTakenByAControlThatIsCreatedLater)
{
    wxString value = "1.5";
    auto* const control = new wxTextCtrl;
    control->Create(panel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_RIGHT | wxTE_PASSWORD,
                    wxNumValidator(FixedFormat(), &value));
    EXPECT_TRUE(dialog->TransferDataToWindow());
    EXPECT_EQ(control->GetValue(), "1.5");
    control->ChangeValue("x");
    EXPECT_FALSE(control->GetValidator()->Validate(panel));
}

// --- A host's class --------------------------------------------------------------------------------------------------

class EvenValidator : public wxNumValidator
{
public:
    using wxNumValidator::wxNumValidator;
    wxObject* Clone() const override { return new EvenValidator(*this); }
    bool Validate(wxWindow* parent) override
    {
        long number = 0;
        const auto* const control = static_cast<wxTextCtrl*>(GetWindow());
        return wxNumValidator::Validate(parent) && control->GetValue().ToLong(&number) && number % 2 == 0;
    }
};

TEST_F(Numbers, MayBeCheckedByAHostsClassToo)
{
    fields[0]->SetValidator(EvenValidator(FixedFormat(), &values[0]));
    Fill("4", "1", "1");
    EXPECT_TRUE(dialog->Validate());
    fields[0]->ChangeValue("5");
    EXPECT_FALSE(dialog->Validate());
    fields[0]->ChangeValue("4.444");
    EXPECT_FALSE(dialog->Validate());
}

// The control keeps a clone. A class that does not override Clone() is cloned as a wxNumValidator.
TEST_F(Numbers, AreOfTheClassThatClonesThem)
{
    class Forgetful : public wxNumValidator
    {
    public:
        using wxNumValidator::wxNumValidator;
        bool Validate(wxWindow*) override { return true; }
    };
    fields[0]->SetValidator(Forgetful(FixedFormat(), &values[0]));
    EXPECT_EQ(typeid(*fields[0]->GetValidator()), typeid(wxNumValidator));
    Fill("x", "1", "1");
    EXPECT_FALSE(dialog->Validate());
}

}  // namespace
