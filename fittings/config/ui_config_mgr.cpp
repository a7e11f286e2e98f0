#include <fittings/config/ui_config_mgr.h>
