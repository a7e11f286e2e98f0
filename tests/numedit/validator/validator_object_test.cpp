// The members of a validator, and which of them its copies keep.

#include <fittings/numedit/num_validator.h>

#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include <wx/combobox.h>
#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/srchctrl.h>

#include <tests/numedit/known_formats.h>
#include <tests/numedit/validator/number_dialog.h>
#include <tests/support/owned_window.h>

namespace {

TEST(Validator, KeepsWhatItWasMadeWith)
{
    wxString value;
    const OpenValidator validator(UnusualFormat(), &value);
    ExpectUnusual(validator.GetFormat());
    EXPECT_EQ(&validator.GetFormat(), &validator.m_format);
    EXPECT_EQ(validator.m_pString, &value);
    EXPECT_FALSE(validator.m_bNumpadDecimal);
    EXPECT_EQ(validator.GetWindow(), nullptr);
    EXPECT_EQ(OpenValidator(UnusualFormat(), nullptr).m_pString, nullptr);
}

TEST(Validator, OwnsItsFormat)
{
    CNumberFormat format = UnusualFormat();
    const wxNumValidator validator(format, nullptr);
    const auto copy = std::make_unique<wxNumValidator>(validator);
    format = CNumberFormat(eFixedFormat);
    ExpectUnusual(validator.GetFormat());
    ExpectUnusual(copy->GetFormat());
}

// As in every assignment of a format, the template is copied up to its first zero character.
TEST(Validator, AssignsItsFormat)
{
    CNumberFormat format(eFixedFormat);
    format.m_strTemplate = std::wstring(L"%s\0x", 4);
    const OpenValidator validator(format, nullptr);
    EXPECT_EQ(validator.GetFormat().m_strTemplate, L"%s");
    OpenValidator changed(format, nullptr);
    changed.m_format.m_strTemplate = std::wstring(L"%s\0x", 4);
    EXPECT_EQ(wxNumValidator(changed).GetFormat().m_strTemplate, L"%s");
}

class ValidatorOfAControl : public testing::Test
{
protected:
    ValidatorOfAControl() : frame(new wxFrame(nullptr, wxID_ANY, "object")) {}
    OwnedWindow<wxFrame> frame;
    wxString value;
};

TEST_F(ValidatorOfAControl, CopiesNeitherWindowNorKeypadKey)
{
    OpenValidator validator(UnusualFormat(), &value);
    validator.SetWindow(frame);
    validator.m_bNumpadDecimal = true;

    const OpenValidator copy(validator);
    EXPECT_EQ(copy.GetWindow(), nullptr);
    EXPECT_FALSE(copy.m_bNumpadDecimal);
    EXPECT_EQ(copy.m_pString, &value);
    ExpectUnusual(copy.GetFormat());

    EXPECT_EQ(validator.GetWindow(), frame);
    EXPECT_TRUE(validator.m_bNumpadDecimal);
}

class SeenClone : public wxNumValidator
{
public:
    using wxNumValidator::wxNumValidator;
    static bool NumpadDecimal(const wxNumValidator& other) { return other.*&SeenClone::m_bNumpadDecimal; }
    static wxString* Value(const wxNumValidator& other) { return other.*&SeenClone::m_pString; }
};

TEST_F(ValidatorOfAControl, ClonesLikeItCopies)
{
    OpenValidator validator(UnusualFormat(), &value);
    validator.SetWindow(frame);
    validator.m_bNumpadDecimal = true;

    const std::unique_ptr<wxObject> object(validator.Clone());
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(typeid(*object), typeid(wxNumValidator));
    const auto& clone = dynamic_cast<const wxNumValidator&>(*object);
    EXPECT_NE(&clone, &validator);
    EXPECT_EQ(clone.GetWindow(), nullptr);
    EXPECT_FALSE(SeenClone::NumpadDecimal(clone));
    EXPECT_EQ(SeenClone::Value(clone), &value);
    ExpectUnusual(clone.GetFormat());
}

TEST_F(ValidatorOfAControl, IsACloneOfTheHosts)
{
    auto* control = new wxTextCtrl(frame, wxID_ANY);
    {
        const wxNumValidator validator(UnusualFormat(), &value);
        control->SetValidator(validator);
        ASSERT_NE(control->GetValidator(), &validator);
    }
    const auto* own = dynamic_cast<wxNumValidator*>(control->GetValidator());
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->GetWindow(), control);
    EXPECT_TRUE(own->CheckValidator());
    ExpectUnusual(own->GetFormat());
}

class DerivedTextCtrl : public wxTextCtrl
{
    using wxTextCtrl::wxTextCtrl;
    wxDECLARE_ABSTRACT_CLASS(DerivedTextCtrl);
};

wxIMPLEMENT_ABSTRACT_CLASS(DerivedTextCtrl, wxTextCtrl);

TEST_F(ValidatorOfAControl, ChecksThatItIsATextControl)
{
    wxNumValidator validator(FixedFormat(), &value);
    EXPECT_FALSE(validator.CheckValidator());
    for (wxWindow* control :
         {new wxTextCtrl(frame, wxID_ANY), static_cast<wxTextCtrl*>(new DerivedTextCtrl(frame, 1))}) {
        validator.SetWindow(control);
        EXPECT_TRUE(validator.CheckValidator());
    }
    for (wxWindow* other : {static_cast<wxWindow*>(frame), static_cast<wxWindow*>(new wxPanel(frame)),
                            static_cast<wxWindow*>(new wxComboBox(frame, wxID_ANY)),
                            static_cast<wxWindow*>(new wxSearchCtrl(frame, wxID_ANY))}) {
        validator.SetWindow(other);
        EXPECT_FALSE(validator.CheckValidator());
    }
    validator.SetWindow(nullptr);
    EXPECT_FALSE(validator.CheckValidator());
}

TEST(ValidatorClass, HasNoRecordOfItsOwn)
{
    const wxNumValidator validator(FixedFormat(), nullptr);
    EXPECT_EQ(validator.GetClassInfo(), wxCLASSINFO(wxValidator));
    EXPECT_EQ(wxClassInfo::FindClass("wxNumValidator"), nullptr);
    EXPECT_TRUE(validator.IsKindOf(wxCLASSINFO(wxEvtHandler)));
}

TEST(ValidatorClass, HasTwoEntriesInItsEventTable)
{
    const wxEventTable& table = OpenValidator::sm_eventTable;
    EXPECT_EQ(wxEventType{table.entries[0].m_eventType}, wxEventType{wxEVT_CHAR});
    EXPECT_EQ(wxEventType{table.entries[1].m_eventType}, wxEventType{wxEVT_KEY_DOWN});
    EXPECT_EQ(wxEventType{table.entries[2].m_eventType}, wxEventType{wxEVT_NULL});
}

class HidingValidator : public wxNumValidator
{
public:
    using wxNumValidator::wxNumValidator;

    const CNumberFormat& GetFormat() const { return other; }
    bool CheckValidator() const { return true; }
    void OnChar(wxKeyEvent&) { ++calls; }
    void OnKeyDown(wxKeyEvent&) { ++calls; }

    CNumberFormat other{eLocaleFormat};
    int calls = 0;
};

TEST(ValidatorClass, AddsNoVirtualOperations)
{
    HidingValidator hiding(FixedFormat(), nullptr);
    wxNumValidator& validator = hiding;
    EXPECT_TRUE(validator.GetFormat().m_bHasDecimals);
    EXPECT_FALSE(validator.CheckValidator());
    wxKeyEvent down(wxEVT_KEY_DOWN);
    validator.OnKeyDown(down);
    EXPECT_FALSE(validator.ProcessEvent(down));
    wxKeyEvent character(wxEVT_CHAR);
    validator.OnChar(character);
    EXPECT_FALSE(validator.ProcessEvent(character));
    EXPECT_EQ(hiding.calls, 0);
}

TEST(ValidatorClass, LaysItsMembersOutInOrder)
{
    const OpenValidator validator(FixedFormat(), nullptr);
    EXPECT_LT(static_cast<const void*>(&validator.m_format), static_cast<const void*>(&validator.m_pString));
    EXPECT_LT(static_cast<const void*>(&validator.m_pString), static_cast<const void*>(&validator.m_bNumpadDecimal));
}

TEST(ValidatorClass, CannotBeAssigned)
{
    EXPECT_FALSE(std::is_copy_assignable_v<wxNumValidator>);
    EXPECT_TRUE((std::is_base_of_v<wxValidator, wxNumValidator>));
    EXPECT_FALSE((std::is_constructible_v<wxNumValidator, CNumberFormat>));
}

}  // namespace
