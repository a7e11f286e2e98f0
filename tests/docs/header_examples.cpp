// The examples in the comments of the public headers, word for word, each inside the code that it needs. The tests run
// the examples that need no user.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/clrpicker.h>
#include <wx/modalhook.h>
#include <wx/wx.h>
#include <wx/xrc/xmlres.h>

#include <fittings/colour/colour_combo.h>
#include <fittings/colour/colour_popup.h>
#include <fittings/colour/colour_validator.h>
#include <fittings/config/store_config.h>
#include <fittings/config/ui_config_mgr.h>
#include <fittings/config/wx_window_state.h>
#include <fittings/dialogs/file_dialog.h>
#include <fittings/dialogs/folder_dialog.h>
#include <fittings/dialogs/remembering_dialogs.h>
#include <fittings/numedit/num_validator.h>
#include <fittings/numedit/number_edit_utils.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/thread/gui_thread.h>
#include <fittings/thread/thread_ex.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <fittings/xrc/colour_combo_handler.h>
#include <fittings/xrc/tree_handler.h>
#include <tests/support/gui.h>
#include <tests/support/temp_folder.h>

namespace header_examples {

// The examples use these parts of a program.
using Bytes = std::vector<unsigned char>;

std::uintptr_t Adler32(const Bytes& bytes)
{
    std::uintptr_t a = 1;
    std::uintptr_t b = 0;
    for (const unsigned char byte : bytes) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    return b << 16 | a;
}

bool IsPrime(int n)
{
    int divisor = 2;
    while (divisor * divisor <= n && n % divisor != 0)
        ++divisor;
    return divisor * divisor > n;
}

wxString PathOf(const wxTreeCursor& item)
{
    return item.GetText();
}

std::vector<wxString> FoldersIn(const wxString& path)
{
    return path == "/" ? std::vector<wxString>{"etc", "home"} : std::vector<wxString>{};
}

TEST(HeaderExamples, ShowANumberWithATemplate)
{
    CNumberFormat weight(eFixedFormat);
    weight.m_nDecimals = 3;
    weight.m_bHasMin = true;
    weight.m_dMin = 0;
    weight.m_strTemplate = L"%s kg";
    wxString shown = CNumberEditUtils::FormatControlText(L"1234.5", weight);  // "1,234.500 kg"
    EXPECT_EQ(shown, "1,234.500 kg");
}

TEST(HeaderExamples, ShowANumberThatWasTyped)
{
    wxFrame frame(nullptr, wxID_ANY, "examples");
    auto* label = new wxStaticText(&frame, wxID_ANY, "");
    const wxString typed = "1234.5";
    const CNumberFormat format(eFixedFormat);
    if (CNumberEditUtils::ValidateString(typed.wc_str(), format))
        label->SetLabel(CNumberEditUtils::FormatControlText(typed.wc_str(), format));  // 1234.5 as 1,234.50
    EXPECT_EQ(label->GetLabel(), "1,234.50");
}

void BuyFor(wxDialog& dialog, wxTextCtrl* field, void (*Buy)(const wxString& price))
{
    wxString price = "9.95";
    field->SetValidator(wxNumValidator(CNumberFormat(eFixedFormat), &price));
    if (dialog.ShowModal() == wxID_OK)
        Buy(price);
}

class MainFrame : public wxFrame
{
public:
    MainFrame();
};

MainFrame::MainFrame() : wxFrame(nullptr, wxID_ANY, "Planets")
{
    wx_window_state::LoadState(this, L"Main");
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        wx_window_state::SaveState(this, L"Main");
        event.Skip();
    });
}

TEST(HeaderExamples, FindAWindowAgain)
{
    const TempUserData data;
    auto* frame = new MainFrame;
    frame->SetSize({70, 80, 300, 200});
    frame->Close();
    PumpPending();
    frame = new MainFrame;
    EXPECT_EQ(frame->GetRect(), wxRect(70, 80, 300, 200));
    frame->Destroy();
}

TEST(HeaderExamples, KeepAnInteger)
{
    const TempUserData data;
    ui_config_mgr::WriteConfigInt(L"search.ini", L"Results", L"PageSize", 50);
    int size = ui_config_mgr::GetConfigInt(L"search.ini", L"Results", L"PageSize");
    EXPECT_EQ(size, 50);
}

TEST(HeaderExamples, KeepAText)
{
    const TempUserData data;
    wxFrame frame(nullptr, wxID_ANY, "examples");
    auto* field = new wxTextCtrl(&frame, wxID_ANY, "a needle");
    CLocalRegStore::WriteString(L"Search", L"LastText", field->GetValue());
    wxString text = CLocalRegStore::GetString(L"Search", L"LastText", L"");
    EXPECT_EQ(text, "a needle");
}

TEST(HeaderExamples, UseTheStoreAsTheToolkitsConfiguration)
{
    const TempUserData data;
    wxConfigBase* const former = wxConfigBase::Get(false);
    wxConfigBase::Set(new wxStoreConfig);  // the toolkit deletes it when the program ends
    wxConfigBase::Get()->Write("/Search/LastText", "a needle");
    delete wxConfigBase::Set(former);
    EXPECT_EQ(CLocalRegStore::GetString(L"Search", L"LastText", L""), L"a needle");
}

TEST(HeaderExamples, SaveAllAtOnce)
{
    const TempUserData data;
    auto* frame = new wxFrame(nullptr, wxID_ANY, "examples");
    auto* tree = new wxHandyTreeCtrl(frame);
    wxTreeCursor root = tree->AddRoot("/");
    {
        CLocalRegStore::Batch batch;
        wx_window_state::SaveState(frame, L"Main");
        tree->SaveState("Folders", root);
    }
    EXPECT_EQ(CLocalRegStore::GetSectionNames().size(), 3U);
    frame->Destroy();
}

TEST(HeaderExamples, FillATreeAsItIsExpanded)
{
    const TempUserData data;
    auto* parent = new wxFrame(nullptr, wxID_ANY, "examples");

    class FolderTree : public wxHandyTreeCtrl
    {
        using wxHandyTreeCtrl::wxHandyTreeCtrl;

        void OnItemExpanding(const wxTreeCursor& item) override
        {
            if (item.GetChild().IsOk())
                return;  // already filled
            for (const wxString& name : FoldersIn(PathOf(item)))
                wxTreeCursor(item).AppendItem(name).SetChildren(true);
        }
    };

    auto* tree = new FolderTree(parent);
    tree->SetProfile("Folders");
    wxTreeCursor root = tree->AddRoot("/");
    root.SetChildren(true);
    tree->LoadState(root);

    tree->Expand(root.item);
    EXPECT_EQ(root.GetChild().GetText(), L"etc");
    const wxTreeCursor parentItem = root;
    {
        const wxTreeCursor& parent = parentItem;
        for (wxTreeCursor child = parent.GetChild(); child.IsOk(); child = child.GetNextSibling())
            child.SetTextColour(0x0000FF);  // red
    }
    EXPECT_EQ(tree->GetItemTextColour(root.GetChild().GetNextSibling().item), *wxRED);
    parent->Destroy();
}

TEST(HeaderExamples, WorkOnAThread)
{
    const Bytes bytes = {'W', 'i', 'k', 'i', 'p', 'e', 'd', 'i', 'a'};
    std::uintptr_t sum = 0;
    const auto Compare = [&](std::uintptr_t result) { sum = result; };
    class Checksum : public wxThreadEx
    {
    public:
        explicit Checksum(const Bytes& bytes) : wxThreadEx(wxTHREAD_JOINABLE), m_bytes(bytes) {}
        ~Checksum() override { Wait(); }  // wait here: the base class waits only after m_bytes is destroyed

        wxThread::ExitCode Entry() override { return reinterpret_cast<wxThread::ExitCode>(Adler32(m_bytes)); }

    private:
        const Bytes m_bytes;
    };

    Checksum checksum(bytes);
    checksum.Create(0);
    if (checksum.Run() == wxTHREAD_NO_ERROR)
        Compare(reinterpret_cast<std::uintptr_t>(checksum.Wait()));
    EXPECT_EQ(sum, 0x11E60398U);
}

wxDEFINE_EVENT(EVT_PRIME, wxCommandEvent);

class Primes : public wxGUIThread
{
public:
    using wxGUIThread::wxGUIThread;
    wxThread::ExitCode Entry() override
    {
        for (int n = 2; DoContinue(); ++n) {
            if (IsPrime(n) && !PostEvent(EVT_PRIME, n))
                break;
        }
        return nullptr;
    }
};

class PrimesFrame : public wxFrame
{
public:
    PrimesFrame() : wxFrame(nullptr, wxID_ANY, "Primes"), m_primes(std::make_unique<Primes>(this))
    {
        Bind(EVT_PRIME, [this](wxCommandEvent& event) { SetTitle(wxString::Format("%d", event.GetInt())); });
        m_primes->RunThread();
    }
    ~PrimesFrame() override
    {
        m_primes->StartKill();  // 1. ask it to stop
        m_primes->Wait();       // 2. wait until it has ended
        m_primes.reset();       // 3. destroy it before its handler
    }

private:
    std::unique_ptr<Primes> m_primes;
};

TEST(HeaderExamples, ReportFromAWorker)
{
    auto* frame = new PrimesFrame;
    EXPECT_TRUE(PumpUntil([&] { return frame->GetTitle() != "Primes"; }));
    frame->Destroy();
}

wxDEFINE_EVENT(EVT_LONG_LINE, wxCommandEvent);

class Lines : public wxGUIThreadEx
{
public:
    Lines(wxEvtHandler* handler, const std::vector<wxString>& lines)
        : wxGUIThreadEx(handler, EVT_LONG_LINE), m_lines(lines)
    {
    }
    wxThread::ExitCode Entry() override
    {
        for (std::size_t i = 0; i < m_lines.size() && DoContinue(); ++i) {
            if (m_lines[i].length() > 80)
                PostEvent(static_cast<int>(i));
        }
        return nullptr;
    }

private:
    const std::vector<wxString>& m_lines;  // owned by the handler, which must not change it before Wait() returns
};

TEST(HeaderExamples, ReportAfterTheWorkerIsGone)
{
    const std::vector<wxString> lines = {"short", wxString('a', 81), "short", wxString('b', 100)};
    wxEvtHandler handler;
    wxString seen;
    handler.Bind(EVT_LONG_LINE, [&](wxCommandEvent& event) { seen += lines[event.GetInt()][0]; });
    {
        Lines worker(&handler, lines);
        ASSERT_EQ(worker.RunThread(), wxTHREAD_NO_ERROR);
        worker.Wait();
    }
    EXPECT_EQ(seen, "");
    EXPECT_TRUE(PumpUntil([&] { return seen == "ab"; })) << seen;
}

class LinePage : public wxPanel
{
public:
    explicit LinePage(wxWindow* parent) : wxPanel(parent)
    {
        auto* const combo = new wxColourCombo(this, wxID_ANY, m_line);
        combo->Bind(wxEVT_COLOURPICKER_CHANGED, [this](wxColourPickerEvent& event) { m_line = event.GetColour(); });
    }

private:
    wxColour m_line = *wxBLUE;
};

class ColourPanel : public wxPanel, private wxColorPopupListener
{
public:
    explicit ColourPanel(wxWindow* parent) : wxPanel(parent)
    {
        auto* combo = new wxColourCombo(this, wxID_ANY, m_lineColour);
        combo->GetPopup()->SetAutomaticText("No line");
        combo->GetPopup()->SetColorListener(this);
    }

private:
    wxColour m_lineColour = *wxBLUE;
};

TEST(HeaderExamples, LetAColourBeChosen)
{
    auto* frame = new wxFrame(nullptr, wxID_ANY, "examples");
    for (wxWindow* const page :
         {static_cast<wxWindow*>(new LinePage(frame)), static_cast<wxWindow*>(new ColourPanel(frame))}) {
        auto* const combo = dynamic_cast<wxColourCombo*>(page->GetChildren().GetFirst()->GetData());
        ASSERT_TRUE(combo);
        EXPECT_EQ(combo->GetColour(), *wxBLUE);
    }
    frame->Destroy();
}

// Chooses red in the first control of a dialog, and returns wxID_OK without showing the dialog.
class EndDialogs : public wxModalDialogHook
{
public:
    EndDialogs() { Register(); }
    int Enter(wxDialog* dialog) override
    {
        dialog->TransferDataToWindow();
        dynamic_cast<wxColourCombo&>(*dialog->GetChildren().GetFirst()->GetData()).SetColour(*wxRED);
        dialog->TransferDataFromWindow();
        return wxID_OK;
    }
};

TEST(HeaderExamples, MoveAColour)
{
    const EndDialogs ok;
    std::vector<wxColour> drawn;
    const auto Draw = [&](const wxColour& colour) { drawn.push_back(colour); };
    wxColour line = *wxBLUE;
    wxDialog dialog(nullptr, wxID_ANY, "Line");
    new wxColourCombo(&dialog, wxID_ANY, *wxBLACK, wxDefaultPosition, wxDefaultSize, wxCB_READONLY,
                      wxColourValidator(&line));
    if (dialog.ShowModal() == wxID_OK)
        Draw(line);
    EXPECT_EQ(drawn, std::vector<wxColour>{*wxRED});
}

TEST(HeaderExamples, ListTheColours)
{
    wxFrame frame(nullptr, wxID_ANY, "examples");
    auto* list = new wxListBox(&frame, wxID_ANY);
    for (int i = 0; i < fittings::kColourCount; ++i)
        list->Append(GetColourTable()[i].szName);
    EXPECT_EQ(list->GetCount(), 40U);
}

// The examples below need a user or resources. They are built but not run. The tests of the samples run similar code.
class DialogsFrame : public wxFrame
{
public:
    void ImportWith(void (*Import)(const wxString& folder))
    {
        wxString folder = wxFolderDlg::DoModalReg(this, "ImportFolder", "Import from");
        if (!folder.empty())
            Import(folder);
    }

    void SaveWith(void (*WriteReport)(const wxString& path))
    {
        const std::string earlier = CQVFileDialogI::SetRegEntry("LastReport");
        const CStdStr<wchar_t> path =
            CQVFileDialogI::LaunchSaveDialog(this, "csv", "Tables (*.csv)|*.csv", "Save the report", "", "");
        CQVFileDialogI::SetRegEntry(earlier);
        if (!path.empty())
            WriteReport(path);
    }

    void LoadWith(void (*Load)(const wxString& path))
    {
        wxRememberingFileDialog dialog(this, "Table", "Open a table", "Tables (*.csv)|*.csv|All files|*",
                                       wxFD_OPEN | wxFD_FILE_MUST_EXIST);
        if (dialog.ShowModal() == wxID_OK)
            Load(dialog.GetPath());
    }

    void ImportFolderWith(void (*Import)(const wxString& folder))
    {
        wxRememberingDirDialog dialog(this, "ImportFolder", "Import from");
        if (dialog.ShowModal() == wxID_OK)
            Import(dialog.GetPath());
    }
};

class ResourceFrame : public wxFrame
{
public:
    void Draw(const wxColour& colour) { SetBackgroundColour(colour); }

    static void AddHandlers()
    {
        // Add the handler where the program calls InitAllHandlers(), before it makes controls from a resource.
        wxXmlResource::Get()->AddHandler(new wxColourComboXmlHandler);
        // Add the handler where the program calls InitAllHandlers(), before it makes controls from a resource.
        wxXmlResource::Get()->AddHandler(new wxHandyTreeCtrlXmlHandler);
    }

    void FindControls()
    {
        auto* const line = XRCCTRL(*this, "line", wxColourCombo);
        line->Bind(wxEVT_COLOURPICKER_CHANGED, [this](wxColourPickerEvent& event) { Draw(event.GetColour()); });
        auto* const folders = XRCCTRL(*this, "folders", wxHandyTreeCtrl);
        wxTreeCursor root = folders->AddRoot("/");
        folders->LoadState(root);
    }
};

}  // namespace header_examples
