#ifndef FITTINGS_TESTS_TREE_TREE_TYPES_H_
#define FITTINGS_TESTS_TREE_TREE_TYPES_H_

#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include <fittings/tree/handy_tree_ctrl.h>

/// The toolkit's tree control, and this library's controls, which must pass the same tests.
using Trees = testing::Types<wxTreeCtrl, wxTreeCtrlEx, wxHandyTreeCtrl>;

/// Names the tests of each type in Trees.
struct TreeName
{
    template <typename Tree>
    static std::string GetName(int)
    {
        if (std::is_same_v<Tree, wxTreeCtrl>)
            return "Toolkit";
        return std::is_same_v<Tree, wxTreeCtrlEx> ? "Ex" : "Handy";
    }
};

#endif
