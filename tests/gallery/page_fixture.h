#ifndef FITTINGS_TESTS_GALLERY_PAGE_FIXTURE_H_
#define FITTINGS_TESTS_GALLERY_PAGE_FIXTURE_H_

#include <string>

#include <gtest/gtest.h>
#include <gtk/gtk.h>

#include <gallery/tour/simulated_user.h>
#include <tests/gallery/browser/browser_fixture.h>
#include <tests/support/gui.h>

/// A page of the gallery, whose controls are found by their names.
class PageTest : public BrowserTest
{
protected:
    virtual wxWindow& Page() = 0;

    /// Returns the panel that contains the fields of the options. The panel is inside the page.
    virtual wxWindow& Fields() = 0;

    template <typename Control>
    Control& Get(const wxString& name)
    {
        auto* control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, &Page()));
        EXPECT_TRUE(control) << name;
        return *control;
    }

    /// Returns whether the GTK widget with the focus is the control or inside the control.
    bool HasFocus(const wxWindow& window)
    {
        GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(frame->GetHandle()));
        return focus && (focus == window.GetHandle() || gtk_widget_is_ancestor(focus, window.GetHandle()));
    }

    /// Returns the name of the page's control that has the focus, or an empty text.
    std::string FocusName()
    {
        for (const wxWindow* parent : {&Fields(), &Page()}) {
            for (const wxWindow* child : parent->GetChildren()) {
                if (HasFocus(*child))
                    return std::string(child->GetName());
            }
        }
        return {};
    }

    bool FocusComesTo(const std::string& name)
    {
        return PumpUntil([&] { return FocusName() == name; });
    }

    /// Presses a key, and waits until the control @a name has the focus. With Alt, the key is a mnemonic.
    void GoTo(const std::string& name, int key, int modifiers = wxMOD_ALT)
    {
        gallery::simulated_user::Press(key, modifiers);
        ASSERT_TRUE(FocusComesTo(name)) << name;
    }

    /// Expects that Tab moves the focus to the controls with these names, one after the other.
    void ExpectTabOrder(const Strings& expected)
    {
        Strings names;
        for (int i = 0; i < 40 && (names.empty() || names.back() != expected.back()); ++i) {
            const std::string before = FocusName();
            gallery::simulated_user::Press(WXK_TAB);
            // Tab also stops at the notebook's tabs, where FocusName() is empty.
            ASSERT_TRUE(PumpUntil([&] { return FocusName() != before; })) << before;
            if (!FocusName().empty())
                names.push_back(FocusName());
        }
        EXPECT_EQ(names, expected);
    }
};

#endif
