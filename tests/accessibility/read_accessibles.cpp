// read_accessibles PID: prints the visible accessible objects of a process, one per line:
//
//   <depth> <role>|<name>|<description>|<label>|<states>
//
// The label of an object consists of the names of the objects that label it. The possible states are "showing",
// "sensitive", "focusable" and "focused". The contents of menu bars and tables are left out.

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include <atspi/atspi.h>

namespace {

struct Unref
{
    void operator()(void* object) const { g_object_unref(object); }
};

using Accessible = std::unique_ptr<AtspiAccessible, Unref>;

std::string Take(char* text)
{
    const std::string taken = text ? text : "";
    g_free(text);
    return taken;
}

std::string LabelOf(AtspiAccessible* object)
{
    std::string label;
    GArray* const relations = atspi_accessible_get_relation_set(object, nullptr);
    for (guint i = 0; relations && i < relations->len; ++i) {
        AtspiRelation* const relation = g_array_index(relations, AtspiRelation*, i);
        if (atspi_relation_get_relation_type(relation) == ATSPI_RELATION_LABELLED_BY) {
            for (gint target = 0; target < atspi_relation_get_n_targets(relation); ++target) {
                const Accessible by(atspi_relation_get_target(relation, target));
                label += Take(atspi_accessible_get_name(by.get(), nullptr));
            }
        }
        g_object_unref(relation);
    }
    if (relations)
        g_array_free(relations, TRUE);
    return label;
}

std::string StatesOf(AtspiAccessible* object)
{
    const std::unique_ptr<AtspiStateSet, Unref> states(atspi_accessible_get_state_set(object));
    std::string names;
    const auto add = [&](AtspiStateType state, const char* name) {
        if (atspi_state_set_contains(states.get(), state))
            names += name;
    };
    add(ATSPI_STATE_SHOWING, " showing");
    add(ATSPI_STATE_SENSITIVE, " sensitive");
    add(ATSPI_STATE_FOCUSABLE, " focusable");
    add(ATSPI_STATE_FOCUSED, " focused");
    return names;
}

void PrintAll(AtspiAccessible* parent, int depth);

void Print(AtspiAccessible* object, int depth)
{
    const std::string states = StatesOf(object);
    if (states.find("showing") == std::string::npos)
        return;
    const std::string role = Take(atspi_accessible_get_role_name(object, nullptr));
    std::printf("%d %s|%s|%s|%s|%s\n", depth, role.c_str(), Take(atspi_accessible_get_name(object, nullptr)).c_str(),
                Take(atspi_accessible_get_description(object, nullptr)).c_str(), LabelOf(object).c_str(),
                states.c_str());
    if (role != "menu bar" && role != "table")
        PrintAll(object, depth + 1);
}

void PrintAll(AtspiAccessible* parent, int depth)
{
    const gint count = atspi_accessible_get_child_count(parent, nullptr);
    for (gint i = 0; i < count; ++i) {
        const Accessible child(atspi_accessible_get_child_at_index(parent, i, nullptr));
        if (child)
            Print(child.get(), depth);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    const guint pid = argc > 1 ? static_cast<guint>(std::strtoul(argv[1], nullptr, 10)) : 0;
    atspi_init();
    const Accessible desktop(atspi_get_desktop(0));
    for (gint i = 0; i < atspi_accessible_get_child_count(desktop.get(), nullptr); ++i) {
        const Accessible program(atspi_accessible_get_child_at_index(desktop.get(), i, nullptr));
        if (program && atspi_accessible_get_process_id(program.get(), nullptr) == pid)
            PrintAll(program.get(), 0);
    }
    return atspi_exit();
}
