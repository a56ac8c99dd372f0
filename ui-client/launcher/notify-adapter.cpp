// Sends progress and texts to the window.
#include "ui-client/launcher/notify-adapter.h"

Notify_Adapter* Notify_Adapter::GetInstance() {
    static Notify_Adapter adapter;
    return &adapter;
}

void Notify_Adapter::UpdateProgress(int total, int current) {
    emit sigUpdateProgress(total, current);
}

void Notify_Adapter::UpdateDialogText(QString text) {
    emit sigUpdateDialogText(text);
}
