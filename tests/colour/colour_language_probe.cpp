// colour_language_probe LANGUAGE: creates a colour popup with a large font in a program of this language, and prints in
// UTF-8:
//
//   name I TEXT           the name of colour I; one such line for each colour
//   automatic TEXT        the text of the box "Automatic"
//   automatic-size W H    the size of this text in the popup's font
//   more TEXT             the text of the box "More Colours..."
//   more-size W H         the size of this text in the popup's font
//   window W H            the size of the popup
//   hot I TEXT            the hot cell I and its text after SetStringValue() with the name of colour 16
//   hint TEXT             the tooltip of this cell

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
        auto* const translations = new wxTranslations;
        wxTranslations::Set(translations);
        translations->SetLanguage(argv[1]);
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
