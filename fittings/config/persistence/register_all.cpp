#include <map>
#include <memory>

#include <wx/toplevel.h>

#include <fittings/config/persistence.h>

namespace {

// A persistent object whose name may differ from the name of its window. The toolkit's own
// wxPersistentRegisterAndRestore() would rename the window, but the program may use the name to find the window.
template <typename Persistent>
class Named : public Persistent
{
public:
    template <typename Window>
    Named(Window* window, const wxString& name) : Persistent(window), m_name(name)
    {
    }

    wxString GetName() const override { return m_name; }

private:
    const wxString m_name;
};

// Returns a new Named<Persistent> if the window's class is `Window` or derived from it; otherwise returns null.
template <typename Persistent, typename Window>
std::unique_ptr<wxPersistentObject> MakeFor(wxWindow& window, const wxString& name)
{
    auto* const found = dynamic_cast<Window*>(&window);
    return found ? std::make_unique<Named<Persistent>>(found, name) : nullptr;
}

// Returns whether Make() can make an object that works for the window.
bool CanRemember(wxWindow& window)
{
    if (auto* const list = dynamic_cast<wxListCtrl*>(&window))
        return list->InReportView();
    // If a registered data view is a page of a book, the toolkit asserts when the data view is destroyed.
    if (dynamic_cast<wxDataViewCtrl*>(&window))
        return !dynamic_cast<wxBookCtrlBase*>(window.GetParent());
    return dynamic_cast<wxTopLevelWindow*>(&window) || dynamic_cast<wxSplitterWindow*>(&window) ||
           dynamic_cast<wxBookCtrlBase*>(&window) || dynamic_cast<wxTreeCtrl*>(&window);
}

std::unique_ptr<wxPersistentObject> Make(wxWindow& window, const wxString& name)
{
    using Maker = std::unique_ptr<wxPersistentObject> (*)(wxWindow&, const wxString&);
    // wxTreebook comes before its base class, wxBookCtrlBase.
    for (const Maker make :
         {Maker(MakeFor<wxPersistentTLW, wxTopLevelWindow>), Maker(MakeFor<wxPersistentSplitter, wxSplitterWindow>),
          Maker(MakeFor<wxPersistentTreeBookCtrl, wxTreebook>), Maker(MakeFor<wxPersistentBookCtrl, wxBookCtrlBase>),
          Maker(MakeFor<wxPersistentDataViewCtrl, wxDataViewCtrl>), Maker(MakeFor<wxPersistentTreeCtrl, wxTreeCtrl>),
          Maker(MakeFor<wxPersistentListCtrl, wxListCtrl>)}) {
        if (auto object = make(window, name))
            return object;
    }
    return nullptr;
}

// Registers a window first and then the windows in it.
class Registration
{
public:
    explicit Registration(const wxString& name) : m_name(name) {}

    // Returns true when something was restored.
    bool Register(wxWindow& window) { return Restore(window, m_name) | RegisterInside(window); }

private:
    bool Restore(wxWindow& window, const wxString& name)
    {
        wxPersistenceManager& manager = wxPersistenceManager::Get();
        return CanRemember(window) && !manager.Find(&window) &&
               manager.RegisterAndRestore(&window, Make(window, name).release());
    }

    bool RegisterChild(wxWindow& child)
    {
        if (child.IsTopLevel())
            return false;
        wxString name = m_name + "/" + child.GetName();
        if (CanRemember(child)) {
            const int number = ++m_numbers[name];
            if (number > 1)
                name += wxString::Format(" %d", number);
        }
        return Restore(child, name) | RegisterInside(child);
    }

    bool RegisterInside(wxWindow& window)
    {
        bool isRestored = false;
        // Register only the pages: the control that selects a page is a part of the book.
        if (const auto* const book = dynamic_cast<wxBookCtrlBase*>(&window)) {
            for (std::size_t page = 0; page < book->GetPageCount(); ++page) {
                if (wxWindow* const shown = book->GetPage(page))
                    isRestored |= RegisterChild(*shown);
            }
            return isRestored;
        }
        for (wxWindow* const child : window.GetChildren())
            isRestored |= RegisterChild(*child);
        return isRestored;
    }

    const wxString m_name;
    std::map<wxString, int> m_numbers;  // How many windows have had each name so far.
};

}  // namespace

bool wxPersistentRegisterAndRestoreAll(wxWindow* window, const wxString& name)
{
    wxCHECK_MSG(window, false, "no window");
    return Registration(name).Register(*window);
}
