// Nothing to prepare: a session has a display, and the bundle its plug-ins.
#include "platform/desktop/gui-environment.h"

struct GuiEnvironment::Parts {};

GuiEnvironment::GuiEnvironment(const QString&, char**) {}

GuiEnvironment::~GuiEnvironment() = default;

void GuiEnvironment::Restore() {}

void GuiEnvironment::GiveDisplayUp() {}
