#include <fittings/platform/file_util_ex.h>
