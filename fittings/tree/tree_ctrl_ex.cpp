#include <fittings/tree/tree_ctrl_ex.h>
