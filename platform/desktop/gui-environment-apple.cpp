// Every session has a display, and every bundle its plug-ins.
#include "platform/desktop/gui-environment.h"

GuiEnvironment::GuiEnvironment(StartMode, const QString&) {}

void GuiEnvironment::Restore() {}
