#include <fittings/tree/tree_cursor.h>
