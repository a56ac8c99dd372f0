// Opens bundles by their URL.
#include <QDesktopServices>
#include <QUrl>

#include "platform/desktop/open-application.h"

bool OpenApplication(const QString& application, const QString&) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(application));
}
