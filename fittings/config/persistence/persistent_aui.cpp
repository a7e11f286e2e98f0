#include <fittings/config/persistence.h>

#include <utility>

#include <fittings/config/aui_layout.h>

// The layout is stored when the manager or its window is destroyed. By then, the program may have called UnInit(): the
// manager has no window and no layout after this call, and no event reports the call. So the layout is recorded
// earlier: whenever it is drawn, and when the window is about to close. The last recorded layout is stored.

class wxPersistentAui::Watch
{
public:
    Watch(wxAuiManager* manager, wxPersistentAui* owner) : m_manager(manager), m_owner(owner) { RecordLayout(); }

    static std::shared_ptr<Watch> Start(wxAuiManager* manager, wxPersistentAui* owner)
    {
        auto watch = std::make_shared<Watch>(manager, owner);
        const auto note = [watch](wxEvent& event) {
            event.Skip();
            watch->RecordLayout();
        };
        manager->Bind(wxEVT_AUI_RENDER, note);
        manager->Bind(wxEVT_CLOSE_WINDOW, note);

        // Bind to the manager and to its window: until UnInit() is called, the manager receives the window's events
        // first. After the call, only the window receives them.
        wxWindow* const window = manager->GetManagedWindow();
        const auto end = [watch, window](wxWindowDestroyEvent& event) {
            event.Skip();
            if (event.GetEventObject() == window) {
                watch->RecordLayout();
                watch->End();
            }
        };
        manager->Bind(wxEVT_DESTROY, end);
        if (window)
            window->Bind(wxEVT_DESTROY, end);

        // A handler of the manager owns the guard. The manager destroys its handlers last, so ~Guard() runs at the end
        // of the manager's destruction.
        struct Guard
        {
            explicit Guard(std::shared_ptr<Watch> toEnd) : watch(std::move(toEnd)) {}
            ~Guard() { watch->OnManagerGoes(); }
            Guard(const Guard&) = delete;
            Guard& operator=(const Guard&) = delete;
            std::shared_ptr<Watch> watch;
        };
        manager->Bind(wxEVT_CLOSE_WINDOW,
                      [guard = std::make_shared<Guard>(watch)](wxCloseEvent& event) { event.Skip(); });
        return watch;
    }

    wxAuiManager* Manager() const { return m_manager; }
    const wxString& Layout() const { return m_layout; }

    void RecordLayout()
    {
        // A manager without a window has no layout.
        if (m_manager && m_manager->GetManagedWindow())
            m_layout = m_manager->SavePerspective();
    }

    void ForgetOwner() { m_owner = nullptr; }

    // Stores the layout and removes the persistent object, if that object still exists.
    void End()
    {
        if (m_owner)
            wxPersistenceManager::Get().SaveAndUnregister(m_owner->GetObject());
    }

    void OnManagerGoes()
    {
        m_manager = nullptr;
        End();
    }

private:
    wxAuiManager* m_manager;
    wxPersistentAui* m_owner;
    wxString m_layout;
};

wxPersistentAui::wxPersistentAui(wxAuiManager* manager, const wxString& name)
    : wxPersistentObject(manager), m_watch(Watch::Start(manager, this)), m_name(name)
{
    if (m_name.empty() && manager->GetManagedWindow())
        m_name = manager->GetManagedWindow()->GetName();
}

wxPersistentAui::~wxPersistentAui()
{
    m_watch->ForgetOwner();
}

void wxPersistentAui::Save() const
{
    m_watch->RecordLayout();
    if (!m_watch->Layout().empty())
        SaveValue("Layout", m_watch->Layout());
}

bool wxPersistentAui::Restore()
{
    wxString layout;
    wxAuiManager* const manager = Get();
    if (!manager || !RestoreValue("Layout", &layout) || !fittings::IsAuiLayout(layout.ToStdWstring()))
        return false;
    manager->LoadPerspective(layout, true);
    m_watch->RecordLayout();
    return true;
}

wxString wxPersistentAui::GetKind() const
{
    return "AuiManager";
}

wxString wxPersistentAui::GetName() const
{
    return m_name;
}

wxAuiManager* wxPersistentAui::Get() const
{
    return m_watch->Manager();
}
