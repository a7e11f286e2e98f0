#include <fittings/platform/std_file_paths.h>
