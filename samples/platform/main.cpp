// A search that keeps its text and its check box in the settings store. All windows and processes of the program share
// this store.

#include <wx/srchctrl.h>
#include <wx/wx.h>

#include <fittings/platform/local_reg_store.h>
#include <fittings/platform/std_file_paths.h>

class SearchFrame : public wxFrame
{
public:
    SearchFrame() : wxFrame(nullptr, wxID_ANY, "Search")
    {
        auto* panel = new wxPanel(this);
        auto* field = new wxSearchCtrl(panel, wxID_ANY, CLocalRegStore::GetString(L"Search", L"LastText", L""));
        auto* whole = new wxCheckBox(panel, wxID_ANY, "&Whole words");
        whole->SetValue(CLocalRegStore::GetProfileBool(L"Search", L"WholeWords", false));
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(field, wxSizerFlags().Expand().Border());
        sizer->Add(whole, wxSizerFlags().Border());
        panel->SetSizer(sizer);
        field->SetFocus();

        field->Bind(wxEVT_SEARCH, [this, field, whole](wxCommandEvent&) {
            const bool saved = CLocalRegStore::WriteString(L"Search", L"LastText", field->GetValue()) &&
                               CLocalRegStore::WriteProfileBool(L"Search", L"WholeWords", whole->GetValue());
            SetTitle(saved ? "Searching for " + field->GetValue()
                           : "Cannot be stored in " + wxString(std_file_paths::GetUserDataDir()));
        });
    }
};

class SearchApp : public wxApp
{
    bool OnInit() override { return (new SearchFrame)->Show(); }
};
wxIMPLEMENT_APP(SearchApp);
