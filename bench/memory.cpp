// fittings-memory: measures the peak memory of the library while it works with a hundred thousand items. Compares each
// peak with that of a peer, which is comparable work without the library, or the data itself.

#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <malloc.h>

#include <wx/app.h>
#include <wx/fileconf.h>
#include <wx/frame.h>

#include <fittings/numedit/number_edit_utils.h>
#include <fittings/platform/local_reg_store.h>
#include <fittings/thread/gui_thread.h>
#include <fittings/tree/handy_tree_ctrl.h>
#include <tests/support/temp_user_data.h>

namespace {

constexpr int kItems = 100'000;

// Returns the amount of memory in the line @a name of /proc/self/status, in bytes.
double Status(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != name + ":") {
    }
    double kilobytes = 0;
    status >> kilobytes;
    return kilobytes * 1024;
}

// Returns the peak of the additional memory during @a work, divided by the number of items.
double PeakOf(const std::function<void()>& work)
{
    malloc_trim(0);
    const double before = Status("VmRSS");
    std::ofstream("/proc/self/clear_refs") << "5\n";  // resets the peak
    work();
    return (Status("VmHWM") - before) / kItems;
}

void Print(const char* row, double ours, const char* peer, double theirs)
{
    std::printf("%-34s %8.0f %8.0f  (%s)\n", row, ours, theirs, peer);
}

void MeasureStore(const std::string& path)
{
    {
        std::ofstream file(path);
        for (int i = 0; i < kItems; ++i) {
            if (i % 5000 == 0)
                file << "[Section" << i / 5000 << "]\n";
            file << "WindowGeometry" << i << "=" << i << ";" << i * 7 << ";640;480\n";
        }
    }
    const std::wstring widePath(path.begin(), path.end());
    CIniFile* ini = nullptr;
    const double ours = PeakOf([&] {
        ini = CLocalRegStore::CreateInitFile(false);
        CLocalRegStore::Load(*ini, widePath.c_str());
        CLocalRegStore::WriteString(*ini, L"Section7", L"WindowGeometry35000", L"1;2;3;4");
        CLocalRegStore::Save(*ini, widePath.c_str());
    });
    CLocalRegStore::DestroyIniFile(ini);
    std::unique_ptr<wxFileConfig> config;
    const double theirs = PeakOf([&] {
        config = std::make_unique<wxFileConfig>("", "", path, "", wxCONFIG_USE_LOCAL_FILE);
        config->Write("/Section7/WindowGeometry35000", "1;2;3;4");
        config->Flush();
    });
    Print("keys loaded, one set, saved", ours, "wxFileConfig", theirs);
}

void MeasureTree()
{
    const auto frame = std::make_unique<wxFrame>(nullptr, wxID_ANY, "memory");
    auto* const tree = new wxHandyTreeCtrl;
    tree->Create(frame.get());
    wxTreeCursor root;
    const double items = PeakOf([&] {
        root = tree->AddRoot("root");
        for (int i = 0; i < kItems; ++i) {
            const wxTreeItemId item = tree->AppendItem(root.item, wxString::Format("folder %06d", i));
            tree->SetItemHasChildren(item);
            if (i % 2 == 0)
                tree->Expand(item);
        }
        tree->Expand(root.item);
    });
    const double saving = PeakOf([&] { tree->SaveState("memory", root); });
    Print("siblings saved, half expanded", saving, "the items themselves", items);
}

class Poster : public wxGUIThread
{
public:
    explicit Poster(wxEvtHandler* receiver) : wxGUIThread(receiver) { RunThread(); }

    wxThread::ExitCode Entry() override
    {
        for (int i = 0; i < kItems; ++i)
            PostEvent(wxEVT_BUTTON, i);
        return nullptr;
    }
};

void MeasureEvents()
{
    wxEvtHandler receiver;
    const double ours = PeakOf([&] { Poster(&receiver).Wait(); });
    receiver.DeletePendingEvents();
    const double theirs = PeakOf([&] {
        wxCommandEvent event(wxEVT_BUTTON);
        for (int i = 0; i < kItems; ++i)
            receiver.AddPendingEvent(event);
    });
    receiver.DeletePendingEvents();
    Print("events posted and not delivered", ours, "wxEvtHandler::AddPendingEvent", theirs);
}

void MeasureDigits()
{
    CNumberFormat format(eFixedFormat);
    format.m_bGroupDigits = true;
    const std::wstring digits(kItems, L'7');
    std::wstring text = digits;
    const double ours = PeakOf([&] { text = CNumberEditUtils::FormatControlText(digits.c_str(), format); });
    std::unique_ptr<std::vector<wchar_t>> copy;
    const double theirs = PeakOf([&] { copy = std::make_unique<std::vector<wchar_t>>(text.begin(), text.end()); });
    Print("digits formatted with groups", ours, "the text itself", theirs);
}

class MemoryApp : public wxApp
{
public:
    bool OnInit() override
    {
        SetAppName("fittings-memory");
        return true;
    }

    int OnRun() override
    {
        const TempUserData data;
        std::printf("%-34s %8s %8s\n", "bytes for each of 100,000", "ours", "peer");
        MeasureStore(data / "keys.ini");
        MeasureTree();
        MeasureEvents();
        MeasureDigits();
        return 0;
    }
};

}  // namespace

wxIMPLEMENT_APP(MemoryApp);
