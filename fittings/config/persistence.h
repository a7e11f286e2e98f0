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
/// Windows that remember how their user arranged them, through the toolkit's persistence.

namespace fittings {
class AncestorWatch;
}

/// Makes the toolkit's persistence keep its values in the default store: those of frames, dialogs, splitters, books and
/// data views, and those of the trees, lists and AUI layouts below.
///
/// @code
/// wxStorePersistenceManager::Install();
/// ...
/// wxPersistentRegisterAndRestoreAll(frame, "Planets");
/// return frame->Show();
/// @endcode
///
/// Register a window when it has all its children, items and columns, and before it is shown.
/// wxPersistentRegisterAndRestoreAll() registers the window with everything in it. wxPersistentRegisterAndRestore()
/// registers the window alone.
///
/// A frame or dialog is restored as wx_window_state::LoadState() restores it: in its place, on a display that still
/// exists, and within that display's work area. A window that was maximised is maximised again. When the user then
/// unmaximises it, it returns to the place and size that it had before. From wxPersistentRegisterAndRestore() on, the
/// place and size of a window are recorded while it is neither maximised, iconised nor full screen.
///
/// The values of a window and of the controls in it are collected, and saved together when the window is destroyed. The
/// values of a control that is destroyed before its window are saved on the next turn of the event loop.
///
/// The toolkit's classes define the values and the sections, such as "Persistent_Options/Window/Browser". A damaged
/// value counts as missing. GUI thread only.
class FITTINGS_API wxStorePersistenceManager : public wxPersistenceManager
{
public:
    ~wxStorePersistenceManager() override;

    /// Makes wxPersistenceManager::Get() return the one object of this class, which is never destroyed. Call this
    /// before the first window is registered, for example in wxApp::OnInit(). Further calls do nothing.
    static wxStorePersistenceManager& Install();

    /// Saves what was collected. Returns false when that failed; the values then stay collected. During a
    /// CLocalRegStore::Batch of the thread, the values pass to the batch as in wxStoreConfig::Flush().
    bool Flush();

    /// @name For the persistent objects
    /// @{
    bool SaveValue(const wxPersistentObject& who, const wxString& name, bool value) override;      ///< Saves it later.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, int value) override;       ///< Saves it later.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, long value) override;      ///< Saves it later.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, wxString value) override;  ///< Saves it later.
    /// Returns false if the stored value is neither 0 nor 1.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, bool* value) override;
    /// Returns false if the stored value is not an int; for a splitter or data view, also if it is not a place or size
    /// that a window can have. For a frame or dialog, a request for "x" restores the whole place and size. A request
    /// for "y" then returns the current y, and a request for "w", "h" or the decorations returns false.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, int* value) override;
    /// Returns false if the stored value is not a number.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, long* value) override;
    /// Returns false if no value is stored.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, wxString* value) override;
    /// @}

protected:
    /// Returns the configuration on the default store. The configuration does not expand environment variables.
    wxConfigBase* GetConfig() const override;

private:
    class Windows;

    wxStorePersistenceManager();

    bool RestorePlace(wxTopLevelWindow& window, const wxPersistentObject& who);

    mutable std::unique_ptr<wxConfigBase> m_config;
    std::unique_ptr<Windows> m_windows;
};

/// Remembers which items of a tree are expanded, which are selected, and which is the first in view.
///
/// An item is identified by the labels on the path to it. A label may be any text. Siblings with the same label are
/// told apart by their order. The label of the root does not matter. Restoring expands parents first, so an item whose
/// children are added when it expands is filled before its children are looked for. Restoring collapses no item, and
/// does not fill items that were collapsed. Selecting sends the toolkit's events, as if the user had selected the item.
/// Items that no longer exist are left out.
///
/// Levels beyond 10,000 are not remembered: the toolkit cannot handle expanded trees that are much deeper.
class FITTINGS_API wxPersistentTreeCtrl : public wxPersistentWindow<wxTreeCtrl>
{
public:
    explicit wxPersistentTreeCtrl(wxTreeCtrl* tree);  ///< wxCreatePersistentObject() calls this.
    ~wxPersistentTreeCtrl() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when no state is stored.
    wxString GetKind() const override;  ///< Part of the section's name.

private:
    void OnIdle(wxIdleEvent& event);
    void ForgetFirstInView();

    wxString m_scrollTo;              ///< The restored state, until OnIdle() has scrolled the tree.
    std::optional<wxString> m_state;  ///< The state when the destruction of an ancestor began.
    std::unique_ptr<fittings::AncestorWatch> m_watch;
};

/// Remembers the widths of a report's columns, and their order if the toolkit lets the user change it. If the number of
/// stored widths is not the number of the list's columns, the stored widths count as missing.
class FITTINGS_API wxPersistentListCtrl : public wxPersistentWindow<wxListCtrl>
{
public:
    explicit wxPersistentListCtrl(wxListCtrl* list);  ///< wxCreatePersistentObject() calls this.
    ~wxPersistentListCtrl() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when no state is stored.
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

    std::optional<State> m_state;  ///< The state when the destruction of an ancestor began.
    std::unique_ptr<fittings::AncestorWatch> m_watch;
};

/// Remembers the layout of an AUI manager's panes, until the manager or its window is destroyed, whichever is first.
///
/// Register the manager when it has all its panes. A stored layout that the toolkit cannot have written counts as
/// missing, as in wx_window_state::LoadAuiManagerState(). What is said there about captions and floating panes holds
/// here too.
class FITTINGS_API wxPersistentAui : public wxPersistentObject
{
public:
    /// @param manager  must already manage a window.
    /// @param name  identifies the layout in the store; if it is empty, the name of the managed window does.
    explicit wxPersistentAui(wxAuiManager* manager, const wxString& name = wxString());
    ~wxPersistentAui() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when no state is stored.
    wxString GetKind() const override;  ///< Part of the section's name.
    wxString GetName() const override;  ///< The given name, or the window's.

    /// Returns the manager; null once its destruction has begun.
    wxAuiManager* Get() const;

private:
    class Watch;

    std::shared_ptr<Watch> m_watch;
    wxString m_name;
};

/// @name Functions that wxPersistentRegisterAndRestore() calls
/// @{

/// Makes the object; the toolkit takes ownership.
inline wxPersistentObject* wxCreatePersistentObject(wxTreeCtrl* tree)
{
    return new wxPersistentTreeCtrl(tree);
}

/// Makes the object; the toolkit takes ownership.
inline wxPersistentObject* wxCreatePersistentObject(wxListCtrl* list)
{
    return new wxPersistentListCtrl(list);
}

/// Makes the object; the toolkit takes ownership.
inline wxPersistentObject* wxCreatePersistentObject(wxAuiManager* manager)
{
    return new wxPersistentAui(manager);
}

/// Does the same as the toolkit's function for windows. The name is a parameter because a manager has no SetName(). If
/// the class is derived from wxAuiManager, convert the pointer to `wxAuiManager*`.
inline bool wxPersistentRegisterAndRestore(wxAuiManager* manager, const wxString& name)
{
    return wxPersistenceManager::Get().RegisterAndRestore(manager, new wxPersistentAui(manager, name));
}
/// @}

/// Registers and restores a window under @a name, and each window inside it that can remember something: splitters,
/// books, data views, trees and reports. Returns true when something was restored.
///
/// An inner window is registered under the outer window's name followed by its own, such as "Planets/treeCtrl" for a
/// tree without a name of its own. If several inner windows have the same name, the second one is registered with " 2"
/// appended to that name, and so on. Children are counted in the order of their creation, and pages of a book in the
/// order of the pages. The windows inside a child are counted right after that child. Give a name to each window whose
/// place in this order may change in a later version of the program. The windows' own names do not change.
///
/// The function leaves out windows that were registered before, other frames and dialogs, data views that are a page of
/// a book, and AUI managers.
FITTINGS_API bool wxPersistentRegisterAndRestoreAll(wxWindow* window, const wxString& name);

#endif
