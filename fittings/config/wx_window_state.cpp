#include <fittings/config/wx_window_state.h>
