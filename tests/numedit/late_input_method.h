#ifndef FITTINGS_TESTS_NUMEDIT_LATE_INPUT_METHOD_H_
#define FITTINGS_TESTS_NUMEDIT_LATE_INPUT_METHOD_H_

#include <string>

#include <gtest/gtest.h>
#include <gtk/gtk.h>

/// Acts as the input method of all GTK entries while the object exists. It shows the typed characters as preedit text.
/// It commits this text outside any key event, when the test calls Commit(). If commitsWhenTheFocusLeaves is true, it
/// also commits the text when the entry loses the focus.
class LateInputMethod
{
public:
    LateInputMethod() : m_class(GTK_IM_CONTEXT_CLASS(g_type_class_ref(GTK_TYPE_IM_MULTICONTEXT))), m_original(*m_class)
    {
        m_class->filter_keypress = OnKey;
        m_class->get_preedit_string = OnPreeditString;
        m_class->focus_out = OnFocusOut;
        m_class->reset = OnReset;
        Self() = this;
    }

    ~LateInputMethod()
    {
        Self() = nullptr;
        m_class->filter_keypress = m_original.filter_keypress;
        m_class->get_preedit_string = m_original.get_preedit_string;
        m_class->focus_out = m_original.focus_out;
        m_class->reset = m_original.reset;
        g_type_class_unref(m_class);
    }

    LateInputMethod(const LateInputMethod&) = delete;
    LateInputMethod& operator=(const LateInputMethod&) = delete;

    const std::string& Preedit() const { return m_preedit; }

    /// Types characters into the focused field of a dialog, and expects them in the preedit text.
    template <typename Dialog>
    void Compose(Dialog& dialog, const std::string& characters)
    {
        dialog.Type(characters);
        EXPECT_EQ(m_preedit, characters);
    }

    void Commit() { CommitText(std::string(m_preedit)); }

    /// Commits @a text instead of the preedit text.
    void CommitText(const std::string& text)
    {
        SetPreedit("");
        g_signal_emit_by_name(m_context, "commit", text.c_str());
    }

    bool commitsWhenTheFocusLeaves = false;

private:
    static LateInputMethod*& Self()
    {
        static LateInputMethod* self = nullptr;
        return self;
    }

    static gboolean OnKey(GtkIMContext* context, GdkEventKey* key)
    {
        const guint32 character = gdk_keyval_to_unicode(key->keyval);
        if (key->type != GDK_KEY_PRESS || character <= ' ' || character > '~')
            return FALSE;
        Self()->m_context = context;
        Self()->SetPreedit(Self()->m_preedit + static_cast<char>(character));
        return TRUE;
    }

    static void OnPreeditString(GtkIMContext*, char** text, PangoAttrList** attributes, int* caret)
    {
        if (text)
            *text = g_strdup(Self()->m_preedit.c_str());
        if (attributes)
            *attributes = pango_attr_list_new();
        if (caret)
            *caret = static_cast<int>(Self()->m_preedit.size());
    }

    static void OnFocusOut(GtkIMContext* context)
    {
        if (context == Self()->m_context && Self()->commitsWhenTheFocusLeaves && !Self()->m_preedit.empty())
            Self()->Commit();
    }

    static void OnReset(GtkIMContext*) {}

    void SetPreedit(const std::string& text)
    {
        m_preedit = text;
        g_signal_emit_by_name(m_context, "preedit-changed");
    }

    GtkIMContextClass* m_class;
    const GtkIMContextClass m_original;
    GtkIMContext* m_context = nullptr;
    std::string m_preedit;
};

#endif
