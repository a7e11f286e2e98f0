// colour_language_probe CATALOGUES LANGUAGE: creates a colour popup in a host of that language, with a large font, and
// prints in UTF-8:
//
//   name I TEXT           the name of each colour
//   automatic TEXT        the text of a box, and the size of its text in the popup's font
//   automatic-size W H
//   more TEXT
//   more-size W H
//   window W H            the size of the popup
//   hot I TEXT            the cell that becomes hot for the name of colour 16, and the combo's text and hint then
//   hint TEXT

#include <cstdio>
#include <string>

#include <wx/app.h>
#include <wx/dcclient.h>
#include <wx/evtloop.h>
#include <wx/translation.h>

#include <fittings/platform/file_util_ex.h>
#include <tests/colour/popup/open_popup.h>

namespace {

void Print(const std::string& what, const wxString& text)
{
    std::printf("%s %s\n", what.c_str(), file_util_ex::ConvertToUTF8(text.ToStdWstring()).c_str());
}

void PrintSize(const char* what, const wxSize& size)
{
    std::printf("%s %d %d\n", what, size.x, size.y);
}

class Probe : public wxApp
{
public:
    bool OnInit() override
    {
        wxFileTranslationsLoader::AddCatalogLookupPathPrefix(argv[1]);
        auto* const translations = new wxTranslations;
        wxTranslations::Set(translations);
        translations->SetLanguage(argv[2]);
        return true;
    }

    int OnRun() override
    {
        wxGUIEventLoop loop;
        wxEventLoopActivator activate(&loop);
        const PopupInFrame popup([](OpenPopup& made) { made.m_font = wxFont(wxFontInfo(30)); });
        for (int i = 0; i < fittings::kColourCount; ++i)
            Print("name " + std::to_string(i), GetColourName(i));
        wxClientDC dc(popup.frame);
        dc.SetFont(popup->m_font);
        Print("automatic", popup->m_strAutomatic);
        PrintSize("automatic-size", dc.GetTextExtent(popup->m_strAutomatic));
        Print("more", popup->m_strMoreColours);
        PrintSize("more-size", dc.GetTextExtent(popup->m_strMoreColours));
        PrintSize("window", popup->GetSize());

        popup->SetStringValue(GetColourName(16));
        Print("hot " + std::to_string(popup->m_nCurrentSel), popup->GetStringValue());
        Print("hint", popup->m_strToolTip);
        return 0;
    }
};

}  // namespace

wxIMPLEMENT_APP(Probe);
