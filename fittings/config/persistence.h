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
/// Makes windows remember how the user has arranged them, with the help of the toolkit's persistence.

namespace fittings {
class AncestorWatch;
}

/// Makes the toolkit's persistence keep its values in the default store of CLocalRegStore: the values of frames,
/// dialogs, splitters, books, data views, trees, lists and AUI layouts. The classes for trees, lists and AUI layouts
/// are below.
///
/// @code
/// wxStorePersistenceManager::Install();
/// ...
/// wxPersistentRegisterAndRestoreAll(frame, "Planets");
/// return frame->Show();
/// @endcode
///
/// Register a window when it has all its children, items and columns, and before it is shown.
/// wxPersistentRegisterAndRestoreAll() registers the window and the windows inside it. wxPersistentRegisterAndRestore()
/// registers the window alone.
///
/// A frame or dialog is restored as wx_window_state::LoadState() restores it: in its place, on a display that still
/// exists, and within that display's work area. A window that was maximised is maximised again. When the user then
/// unmaximises it, it returns to the place and size that it had before it was maximised. After the registration, the
/// place and size of the frame or dialog are recorded while it is neither maximised, iconised nor full screen.
///
/// The values of a window and of the controls in it are collected, and saved together when the window is destroyed. The
/// values of a control that is destroyed before its window are saved on the next turn of the event loop.
///
/// The toolkit defines the names of the sections, such as "Persistent_Options/Window/Browser" for a frame "Browser",
/// and the values of its own classes. A damaged value counts as missing. GUI thread only.
class FITTINGS_API wxStorePersistenceManager : public wxPersistenceManager
{
public:
    ~wxStorePersistenceManager() override;

    /// Makes wxPersistenceManager::Get() return the only object of this class, and returns this object too. The object
    /// is never destroyed. Call this before the first window is registered, for example in wxApp::OnInit(). The
    /// function may be called again.
    static wxStorePersistenceManager& Install();

    /// Saves the collected values. Returns false when the save failed; the values then stay collected. While the thread
    /// has a CLocalRegStore::Batch, the values pass to the batch as in wxStoreConfig::Flush().
    bool Flush();

    /// @name Functions that the persistent objects call
    /// @{
    bool SaveValue(const wxPersistentObject& who, const wxString& name, bool value) override;      ///< Saves it later.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, int value) override;       ///< Saves it later.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, long value) override;      ///< Saves it later.
    bool SaveValue(const wxPersistentObject& who, const wxString& name, wxString value) override;  ///< Saves it later.
    /// Returns false if the stored value is missing or neither 0 nor 1.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, bool* value) override;
    /// Returns false if the stored value is missing or not an int. For a splitter or data view, also returns false if
    /// the value is not a place or size that a window can have.
    ///
    /// For a frame or dialog, the call for "x" restores the whole place and size. The call for "y" sets *value
    /// to the window's current y and returns true. The calls for "w", "h" and the decorations return false.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, int* value) override;
    /// Returns false if the stored value is missing or not a number.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, long* value) override;
    /// Returns false if no value is stored.
    bool RestoreValue(const wxPersistentObject& who, const wxString& name, wxString* value) override;
    /// @}

protected:
    /// Returns a wxStoreConfig of the default store. The wxStoreConfig does not expand environment variables.
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
/// told apart by their order. The label of the root does not matter. Items that no longer exist are left out.
///
/// If an item was expanded when the state was stored, Restore() expands it before it looks for its children. So a
/// program may add the children when the item expands. If an item was collapsed, Restore() leaves it as it is, and
/// finds only the children that it already has. Selecting sends the toolkit's events, as if the user had selected the
/// item.
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

/// Remembers the column widths of a list in report view. Also remembers the order of the columns if the toolkit lets
/// the user change it. If the number of stored widths differs from the number of columns, the stored widths count as
/// missing, and nothing is restored.
class FITTINGS_API wxPersistentListCtrl : public wxPersistentWindow<wxListCtrl>
{
public:
    explicit wxPersistentListCtrl(wxListCtrl* list);  ///< wxCreatePersistentObject() calls this.
    ~wxPersistentListCtrl() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when nothing is restored.
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

/// Remembers the layout of an AUI manager's panes. The layout is stored when the manager or its window is destroyed,
/// whichever happens first.
///
/// Register the manager when it has all its panes. A stored layout that the toolkit cannot have written counts as
/// missing, as in wx_window_state::LoadAuiManagerState(). The rules for captions and floating panes are the same as for
/// that function.
class FITTINGS_API wxPersistentAui : public wxPersistentObject
{
public:
    /// @param manager  must already manage a window.
    /// @param name  identifies the layout in the store. If it is empty, the name of the managed window is used.
    explicit wxPersistentAui(wxAuiManager* manager, const wxString& name = wxString());
    ~wxPersistentAui() override;

    void Save() const override;         ///< Stores the state.
    bool Restore() override;            ///< False when no state is stored.
    wxString GetKind() const override;  ///< Part of the section's name.
    wxString GetName() const override;  ///< The name of the layout in the store.

    /// Returns the manager; null once its destruction has begun.
    wxAuiManager* Get() const;

private:
    class Watch;

    std::shared_ptr<Watch> m_watch;
    wxString m_name;
};

/// @name wxPersistentRegisterAndRestore() for trees, lists and AUI managers
/// @{

/// Makes the persistent object; the toolkit takes ownership.
inline wxPersistentObject* wxCreatePersistentObject(wxTreeCtrl* tree)
{
    return new wxPersistentTreeCtrl(tree);
}

/// Makes the persistent object; the toolkit takes ownership.
inline wxPersistentObject* wxCreatePersistentObject(wxListCtrl* list)
{
    return new wxPersistentListCtrl(list);
}

/// Makes the persistent object; the toolkit takes ownership.
inline wxPersistentObject* wxCreatePersistentObject(wxAuiManager* manager)
{
    return new wxPersistentAui(manager);
}

/// Registers and restores a manager's layout under @a name. The toolkit's template of the same name needs a SetName(),
/// which a manager does not have. If the manager's class is derived from wxAuiManager, convert the pointer to
/// `wxAuiManager*`.
inline bool wxPersistentRegisterAndRestore(wxAuiManager* manager, const wxString& name)
{
    return wxPersistenceManager::Get().RegisterAndRestore(manager, new wxPersistentAui(manager, name));
}
/// @}

/// Registers and restores a window under @a name, and each window inside it that can remember something: splitters,
/// books, data views, trees, and lists in report view. Returns true when something was restored.
///
/// An inner window is registered under @a name, "/" and the inner window's name. For example, a tree that was not given
/// a name is registered under "Planets/treeCtrl". If several inner windows have the same name, " 2" is appended for the
/// second window, " 3" for the third, and so on. Children are counted in the order of their creation, and pages of a
/// book in the order of the pages. The windows inside a child are counted right after that child. Give a name to each
/// window whose place in this order may change in a later version of the program. The function does not change the
/// windows' own names.
///
/// The function leaves out windows that were registered before, other frames and dialogs, data views that are a page of
/// a book, and AUI managers.
FITTINGS_API bool wxPersistentRegisterAndRestoreAll(wxWindow* window, const wxString& name);

#endif
