// Prints a text of the library in German, without a display.

#include <wx/init.h>
#include <wx/translation.h>
#include <wx/wxcrt.h>
#include <wx/wxcrtvararg.h>

#include <fittings/platform/lng_util.h>

int main()
{
    wxInitializer toolkit;
    wxTranslations::Set(new wxTranslations);
    wxTranslations::Get()->SetLanguage("de");
    wxPrintf("%s\n", lng_util_internal::DoGetResourceString(L"Current folder is:", nullptr));
}
