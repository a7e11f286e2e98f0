// The tour's steps on the pages beside the browser.

#include <wx/notebook.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "gallery_frame.h"
#include "numbers_page.h"
#include "simulated_user.h"
#include "tour.h"

namespace fittings {

using namespace simulated_user;

bool Tour::ShowPage(char key, const wxWindow* page)
{
    Press(key, wxMOD_ALT);
    return Waits([&] { return m_frame->GetPages()->GetCurrentPage() == page && page->IsShownOnScreen(); },
                 "Alt with a digit shows a page");
}

bool Tour::TypeNumber()
{
    if (!ShowPage('2', m_frame->GetNumbers()))
        return false;
    const auto* field = dynamic_cast<wxTextCtrl*>(wxWindow::FindWindowByName("Number", m_frame->GetNumbers()));
    const auto* shown =
        dynamic_cast<wxStaticText*>(wxWindow::FindWindowByName("FormatControlTextResult", m_frame->GetNumbers()));
    if (!Waits([&] { return field->HasFocus(); }, "the number has the focus"))
        return false;
    Press('A', wxMOD_CONTROL);
    // The letter, the sixth digit and the third decimal are refused.
    for (const char key : {'-', '1', '2', 'x', '3', '4', '5', '6', '.', '8', '9', '7'})
        Press(key);
    if (!Waits([&] { return field->GetValue() == "-12345.89"; }, "only a number can be typed") ||
        !IsTrue(shown->GetLabelText() == "12,345.89-", "the number is shown as its format says"))
        return false;
    Press('L', wxMOD_ALT);
    for (int i = 0; i < 3; ++i)
        Press(WXK_DOWN);
    if (!Waits([&] { return shown->GetLabelText() == "EUR 12,345.89-"; }, "the keyboard chooses a template"))
        return false;
    Press('C', wxMOD_ALT);
    return Waits([&] { return m_frame->GetNumbers()->GetKept() == "-12345.89"; }, "an accepted number is kept") &&
           SavePicture("numbers") && ShowPage('1', m_frame->GetPages()->GetPage(0));
}

}  // namespace fittings
