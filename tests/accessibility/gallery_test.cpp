#include <array>
#include <set>

#include <gmock/gmock.h>

#include <gtk/gtk.h>
#include <wx/notebook.h>

#include <tests/accessibility/accessibles.h>
#include <tests/gallery/browser/browser_fixture.h>

namespace {

using namespace gallery::simulated_user;
using testing::IsEmpty;
using testing::IsSupersetOf;

std::string LabelOf(AtkObject* object)
{
    AtkRelationSet* const relations = atk_object_ref_relation_set(object);
    AtkRelation* const labelled = atk_relation_set_get_relation_by_type(relations, ATK_RELATION_LABELLED_BY);
    std::string label;
    if (labelled)
        label = atk_object_get_name(static_cast<AtkObject*>(g_ptr_array_index(atk_relation_get_target(labelled), 0)));
    g_object_unref(relations);
    return label;
}

class ScreenReaderInTheGallery : public BrowserTest, public testing::WithParamInterface<int>
{
protected:
    ScreenReaderInTheGallery()
    {
        Open(root);
        Press('1' + GetParam(), wxMOD_ALT);
        EXPECT_TRUE(PumpUntil([&] { return frame->GetPages()->GetSelection() == GetParam(); }));
    }

    // Returns the part that has the focus. If a combo box contains that part, returns the combo box instead.
    Accessible FocusedPart() const
    {
        GtkWidget* const widget = gtk_window_get_focus(GTK_WINDOW(frame->GetHandle()));
        GtkWidget* const choice = gtk_widget_get_ancestor(widget, GTK_TYPE_COMBO_BOX);
        AtkObject* const object = gtk_widget_get_accessible(choice ? choice : widget);
        Accessible focused;
        focused.role = RoleName(atk_role_get_name(atk_object_get_role(object)));
        const char* const name = atk_object_get_name(object);
        focused.name = name ? name : "";
        focused.label = LabelOf(object);
        return focused;
    }

    // Returns a text such as "check box Round".
    static std::string Said(const Accessible& accessible)
    {
        return accessible.role + " " + (accessible.label.empty() ? accessible.name : accessible.label);
    }
};

TEST_P(ScreenReaderInTheGallery, HasANameForAllThatTakesTheFocus)
{
    std::vector<Accessible> nameless;
    std::set<std::string> said;
    for (const Accessible& each : ReadAccessibles()) {
        said.insert(each.role + " " + each.name);
        if (each.focusable && each.name.empty() && each.label.empty())
            nameless.push_back(each);
    }
    EXPECT_THAT(nameless, IsEmpty());
    const std::vector<std::string> names[] = {
        {"page tab list Pages", "tree " + root.substr(root.rfind('/') + 1), "table Contents of the folder"},
        {"spin button Decimals", "spin button Integer digits", "text Minimum", "text Maximum"},
        {"table What the host learns", "text Text of Automatic", "text Text of More Colours",
         "spin button Milliseconds", "combo box Blue"}};
    EXPECT_THAT(said, IsSupersetOf(names[GetParam()]));
}

// Tab must lead to exactly the focusable parts, with three exceptions. Tab skips the buttons of the tool bar; the test
// recognises these buttons by the key in their description, such as "(F5)". In a scroll pane, the content takes the
// focus. In a wxChoice, the focused part is not accessible, so the combo box is expected in its place.
TEST_P(ScreenReaderInTheGallery, IsLedByTabToAllThatTakesTheFocus)
{
    std::set<std::string> expected;
    for (const Accessible& each : ReadAccessibles()) {
        const bool hasKey = each.role == "push button" && each.description.find(" (") != std::string::npos;
        if ((each.focusable && each.role != "scroll pane" && !hasKey) || each.role == "combo box")
            expected.insert(Said(each));
    }
    std::set<std::string> reached;
    for (std::size_t i = 0; i < expected.size() + 3; ++i) {
        Press(WXK_TAB);
        PumpPending();
        reached.insert(Said(FocusedPart()));
    }
    EXPECT_EQ(reached, expected);
}

INSTANTIATE_TEST_SUITE_P(, ScreenReaderInTheGallery, testing::Values(0, 1, 2), [](const auto& info) {
    return std::string(std::array{"DiskUsage", "Numbers", "Colours"}[static_cast<std::size_t>(info.param)]);
});

}  // namespace
