#ifndef FITTINGS_CONFIG_PERSISTENCE_H_
#define FITTINGS_CONFIG_PERSISTENCE_H_

#include <memory>
#include <optional>

#include <wx/aui/framemanager.h>
#include <wx/listctrl.h>
#include <wx/persist.h>
#include <wx/persist/bookctrl.h>
#include <wx/persist/dataview.h>
#include <wx/persist/splitter.h>
#include <wx/persist/toplevel.h>
#include <wx/persist/treebook.h>
#include <wx/persist/window.h>
#include <wx/treectrl.h>

#include <fittings/base/export.h>

/// @file
/// Windows that remember what their user has arranged, through the toolkit's persistence.

namespace fittings {
class AncestorWatch;
}

/// Makes the toolkit's persistence keep its values in the default store: of frames, dialogs, splitters, books
/// and data views, and of the trees, lists and AUI layouts below.
///
/// @code
/// wxStorePersistenceManager::Install();
/// ...
/// wxPersistentRegisterAndRestoreAll(frame, "Planets");
/// return frame->Show();
/// @endcode
///
/// Register a window once it has all its children, items and columns, and before it is shown: with all that is in it,
/// as above, or alone, by wxPersistentRegisterAndRestore().
///
/// A frame or dialog comes back as by wx_window_state::LoadState(): on a display that is still there, within its work
/// area, and in its place even if it is the first window of the process. One that was maximised comes back maximised,
/// and when the user restores it, it has the place and size that it had before; the same for full screen and iconised.
/// These are known from wxPersistentRegisterAndRestore() on.
///
/// What a window and the controls in it store is collected and saved as one when the window is gone; what is stored by
/// a control that goes alone, on the next turn of the event loop.
///
/// The values are those of the toolkit's classes, sections "Persistent_Options/Window/Browser" and the like. A value
/// that is damaged counts as none. GUI thread only.
class FITTINGS_API wxStorePersistenceManager : public wxPersistenceManager
{
public:
    ~wxStorePersistenceManager() override;

    /// Makes wxPersistenceManager::Get() return the one object of this class, which is never destroyed. To be called
    /// before the first window is registered, as in wxApp::OnInit(). More calls do nothing.
    static wxStorePersistenceManager& Install();

    /// Saves what has been collected. Returns false when it could not be saved; it is then still collected.
    bool Flush();

    /// @name For the persistent objects
    /// @{
    bool SaveValue(const wxPersistentObject& who, const wxString& name, bool value) override;      ///< Collects it.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, int value) override;       ///< Collects it.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, long value) override;      ///< Collects it.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, wxString value) override;  ///< Collects it.
    /// False for what is neither 0 nor 1.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, bool* value) override;
    /// False for what is no int, or no place and size that a window can have.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, int* value) override;
    /// False for what is no number.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, long* value) override;
    /// False where there is none.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, wxString* value) override;
    /// @}

protected:
    /// Returns the configuration on the default store, which does not expand environment variables.
    wxConfigBase* GetConfig() const override;

private:
    class Windows;

    wxStorePersistenceManager();

    bool RestorePlace(wxTopLevelWindow& window, const wxPersistentObject& who);

    mutable std::unique_ptr<wxConfigBase> m_config;
    std::unique_ptr<Windows> m_windows;
};

/// Remembers of a tree which items are expanded, which are selected, and which is the first in view.
///
/// Items are known by their paths, whose steps may hold any text; siblings with one label are told apart by their
/// number. The label of the root does not matter. Restoring expands parents first, so that levels which are filled as
/// they are expanded open on the way; it collapses nothing, and fills no level that was collapsed. Selecting sends the
/// toolkit's events, as if the user did it. Items that are gone are left out.
///
/// Deeper than 10,000 levels nothing is remembered: the toolkit does not bear expanded trees that are much deeper.
class FITTINGS_API wxPersistentTreeCtrl : public wxPersistentWindow<wxTreeCtrl>
{
public:
    explicit wxPersistentTreeCtrl(wxTreeCtrl* tree);  ///< For wxCreatePersistentObject().
    ~wxPersistentTreeCtrl() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when there is none.
    wxString GetKind() const override;  ///< Part of the section's name.

private:
    void OnIdle(wxIdleEvent& event);
    void ForgetFirstInView();

    wxString m_scrollTo;              ///< What was restored, until its first item in view has been scrolled to.
    std::optional<wxString> m_state;  ///< As it is when a window around the tree begins to go.
    std::unique_ptr<fittings::AncestorWatch> m_watch;
};

/// Remembers the widths of a report's columns, and their order where the toolkit lets the user change it. Widths of
/// another number of columns than there are now count as none.
class FITTINGS_API wxPersistentListCtrl : public wxPersistentWindow<wxListCtrl>
{
public:
    explicit wxPersistentListCtrl(wxListCtrl* list);  ///< For wxCreatePersistentObject().
    ~wxPersistentListCtrl() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when there is none.
    wxString GetKind() const override;  ///< Part of the section's name.

private:
    /// @cond
    struct State
    {
        wxString widths;
        wxString order;
    };
    /// @endcond

    std::optional<State> GetState() const;

    std::optional<State> m_state;  ///< As it is when a window around the list begins to go.
    std::unique_ptr<fittings::AncestorWatch> m_watch;
};

/// Remembers the layout of an AUI manager's panes, until the manager or the window that it manages goes, whichever is
/// first.
///
/// Register the manager when it has all its panes. A stored layout that the toolkit cannot have written counts as none,
/// as for wx_window_state::LoadAuiManagerState(); what is said there of captions and floating panes holds here too.
class FITTINGS_API wxPersistentAui : public wxPersistentObject
{
public:
    /// @param manager Manages a window already.
    /// @param name The name of that window when empty.
    explicit wxPersistentAui(wxAuiManager* manager, const wxString& name = wxString());
    ~wxPersistentAui() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when there is none.
    wxString GetKind() const override;  ///< Part of the section's name.
    wxString GetName() const override;  ///< The name given, or the window's.

    /// The manager; null once it has begun to go.
    wxAuiManager* Get() const;

private:
    class Watch;

    std::shared_ptr<Watch> m_watch;
    wxString m_name;
};

/// @name What wxPersistentRegisterAndRestore() finds
/// @{

/// Makes the object, which the toolkit takes over.
inline wxPersistentObject* wxCreatePersistentObject(wxTreeCtrl* tree)
{
    return new wxPersistentTreeCtrl(tree);
}

/// Makes the object, which the toolkit takes over.
inline wxPersistentObject* wxCreatePersistentObject(wxListCtrl* list)
{
    return new wxPersistentListCtrl(list);
}

/// Makes the object, which the toolkit takes over.
inline wxPersistentObject* wxCreatePersistentObject(wxAuiManager* manager)
{
    return new wxPersistentAui(manager);
}

/// As the toolkit's function does for windows; a manager has no SetName(). For a class derived from wxAuiManager,
/// convert the pointer.
inline bool wxPersistentRegisterAndRestore(wxAuiManager* manager, const wxString& name)
{
    return wxPersistenceManager::Get().RegisterAndRestore(manager, new wxPersistentAui(manager, name));
}
/// @}

/// Registers and restores a window, under @a name, and each window in it that can remember something: splitters, books,
/// data views, trees and reports. True when something was restored.
///
/// A window in it goes by its own name behind that of the outer one, "Planets/treeCtrl" where it was given none. Of
/// several with one name, the second one has " 2" at its end, and so on in the order in which they were made: give a
/// name to those that later versions of the program may put in another order. No window's name changes.
///
/// Left out are windows that were registered before, other frames and dialogs, data views that are a page of a book
/// themselves, and AUI managers.
FITTINGS_API bool wxPersistentRegisterAndRestoreAll(wxWindow* window, const wxString& name);

#endif
