#include <fittings/numedit/entry/refused_key.h>

#include <memory>
#include <string>
#include <utility>

#include <gtk/gtk.h>

#include <wx/event.h>
#include <wx/textctrl.h>

#include <fittings/numedit/entry/entry_text.h>

namespace {

using fittings::EntrySelection;
using fittings::SelectionOf;

struct Deletion
{
    int begin;
    std::string text;  // in UTF-8
    EntrySelection selection;
};

// What is needed to undo the current key in a control. The control's GtkEntry owns the object.
struct Key
{
    wxTextCtrl& control;
    std::unique_ptr<Deletion> deletion;
    std::unique_ptr<wxEventBlocker> quiet;  // blocks wxEVT_TEXT from UndoKey() to the end of the key event
    bool wasModified = false;
    gulong selecting = 0;
};

const char kKeyData[] = "fittings-key";

GtkEntry* EntryOf(const wxTextCtrl& control)
{
    return GTK_IS_ENTRY(control.GetHandle()) ? GTK_ENTRY(control.GetHandle()) : nullptr;
}

void OnDelete(GtkEditable* editable, int begin, int end, Key* key)
{
    char* const text = gtk_editable_get_chars(editable, begin, end);
    key->deletion = std::make_unique<Deletion>(Deletion{begin, text, SelectionOf(GTK_ENTRY(editable))});
    g_free(text);
}

void OnInserted(GtkEditable*, const char*, int, int*, Key* key)
{
    key->deletion.reset();
}

// Restores the selection, which GTK has just ended: GTK moves the caret after each insertion, even after a refused one.
void OnSelectionEnded(GtkEditable* editable, GParamSpec*, Key* key)
{
    g_signal_handler_disconnect(editable, std::exchange(key->selecting, 0));
    if (key->deletion)
        Select(GTK_ENTRY(editable), key->deletion->selection);
}

// At the end of the key event, stops blocking wxEVT_TEXT and restores the modified state. The toolkit has then sent
// every wxEVT_TEXT for the key.
void OnKeyEnd(GtkWidget* entry, GdkEvent*, Key* key)
{
    if (!key->quiet)
        return;
    key->quiet.reset();
    key->deletion.reset();
    if (key->selecting)
        g_signal_handler_disconnect(entry, std::exchange(key->selecting, 0));
    if (!key->wasModified)
        key->control.DiscardEdits();
}

Key& WatchedKey(wxTextCtrl& control, GtkEntry* entry)
{
    if (auto* key = static_cast<Key*>(g_object_get_data(G_OBJECT(entry), kKeyData)))
        return *key;
    auto* key = new Key{control, nullptr, nullptr};
    g_object_set_data_full(G_OBJECT(entry), kKeyData, key, [](gpointer data) { delete static_cast<Key*>(data); });
    g_signal_connect(entry, "delete-text", G_CALLBACK(OnDelete), key);
    g_signal_connect_after(entry, "insert-text", G_CALLBACK(OnInserted), key);
    g_signal_connect_after(entry, "event-after", G_CALLBACK(OnKeyEnd), key);
    return *key;
}

bool IsInKeyPress()
{
    GdkEvent* const event = gtk_get_current_event();
    const bool isPress = event && gdk_event_get_event_type(event) == GDK_KEY_PRESS;
    if (event)
        gdk_event_free(event);
    return isPress;
}

}  // namespace

void fittings::BeginKey(wxTextCtrl& control)
{
    if (GtkEntry* const entry = EntryOf(control))
        WatchedKey(control, entry).deletion.reset();
}

void fittings::UndoKey(wxTextCtrl& control)
{
    GtkEntry* const entry = EntryOf(control);
    auto* const key = entry ? static_cast<Key*>(g_object_get_data(G_OBJECT(entry), kKeyData)) : nullptr;
    if (!key || !key->deletion || key->quiet || !IsInKeyPress())
        return;

    key->quiet = std::make_unique<wxEventBlocker>(&control, wxEVT_TEXT);
    key->wasModified = control.IsModified();
    const std::unique_ptr<Deletion> lost = std::move(key->deletion);

    int position = lost->begin;
    InsertUntyped(entry, static_cast<wxTextEntry*>(&control), lost->text, position);
    Select(entry, lost->selection);
    key->deletion = std::make_unique<Deletion>(*lost);
    key->selecting = g_signal_connect(entry, "notify::selection-bound", G_CALLBACK(OnSelectionEnded), key);
}
