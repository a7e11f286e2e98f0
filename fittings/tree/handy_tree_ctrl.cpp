#include <fittings/tree/handy_tree_ctrl.h>
