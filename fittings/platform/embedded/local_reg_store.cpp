#include <fittings/platform/local_reg_store.h>
