#ifndef FITTINGS_TESTS_GALLERY_NUMBERS_NUMBERS_PAGE_FIXTURE_H_
#define FITTINGS_TESTS_GALLERY_NUMBERS_NUMBERS_PAGE_FIXTURE_H_

#include <string>

#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <gallery/numbers/number_format_fields.h>
#include <gallery/numbers/numbers_page.h>
#include <tests/gallery/page_fixture.h>

/// The gallery's page of numbers, with the focus in the number's field.
class NumbersPageTest : public PageTest
{
protected:
    void SetUp() override { OpenPage(); }

    void OpenPage();
    void OpenNextSession();

    wxWindow& Page() override { return *frame->GetNumbers(); }
    wxWindow& Fields() override { return *frame->GetNumbers()->GetFields(); }
    wxTextCtrl& Number() { return Get<wxTextCtrl>("Number"); }
    wxString Label(const wxString& name) { return Get<wxStaticText>(name).GetLabelText(); }
    wxString Result(const wxString& function) { return Label(function + "Result"); }
    CNumberFormat Format() { return frame->GetNumbers()->GetFields()->GetFormat(); }

    void Type(const std::string& text);

    /// Types a text in place of the text of the number's field. The field may refuse some of the keys.
    void TypeNumber(const std::string& text);
};

#endif
