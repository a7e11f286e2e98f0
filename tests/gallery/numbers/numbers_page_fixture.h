#ifndef FITTINGS_TESTS_GALLERY_NUMBERS_NUMBERS_PAGE_FIXTURE_H_
#define FITTINGS_TESTS_GALLERY_NUMBERS_NUMBERS_PAGE_FIXTURE_H_

#include <string>

#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <gallery/numbers/number_format_fields.h>
#include <gallery/numbers/numbers_page.h>
#include <tests/gallery/browser/browser_fixture.h>

/// The gallery's page of numbers, with the focus in the number's field.
class NumbersPageTest : public BrowserTest
{
protected:
    void SetUp() override { OpenPage(); }

    void OpenPage();
    void OpenNextSession();

    template <typename Control>
    Control& Get(const wxString& name)
    {
        auto* control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, frame->GetNumbers()));
        EXPECT_TRUE(control) << name;
        return *control;
    }

    wxTextCtrl& Number() { return Get<wxTextCtrl>("Number"); }
    wxString Label(const wxString& name) { return Get<wxStaticText>(name).GetLabelText(); }
    wxString Result(const wxString& function) { return Label(function + "Result"); }
    CNumberFormat Format() { return frame->GetNumbers()->GetFields()->GetFormat(); }

    /// Returns the name of the page's control that has the focus, or an empty text. In some controls, the focus is in a
    /// GTK widget that is not a window of the toolkit.
    wxString FocusName();
    bool FocusComesTo(const wxString& name);

    /// Presses a key, by default the mnemonic of a control, and waits until the control has the focus.
    void GoTo(const wxString& name, int key, int modifiers = wxMOD_ALT);

    void Type(const std::string& text);

    /// Types a text in place of the text of the number's field. The field may refuse some of the keys.
    void TypeNumber(const std::string& text);
};

#endif
