#include <fittings/dialogs/folder_dialog.h>
