#include "TrayLog.h"

Q_LOGGING_CATEGORY(lcTray, "tovra.tray")
