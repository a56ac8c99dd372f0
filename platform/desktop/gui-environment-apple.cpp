// Nothing to prepare: a session has a display, and the bundle its plug-ins.
#include "platform/desktop/gui-environment.h"

GuiEnvironment::GuiEnvironment(const QString&) {}

void GuiEnvironment::Restore() {}

void GuiEnvironment::Set(const char*, const QByteArray&) {}
