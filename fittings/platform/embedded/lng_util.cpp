#include <fittings/platform/lng_util.h>
