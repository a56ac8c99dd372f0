// Default paths of a package next to an application.
#include "ui-client/launcher/package-info.h"

#include <QCoreApplication>
#include <QDir>

#include "ui-client/launcher/qt-text.h"

PackageInfo::PackageInfo()
    : image_dir(ToUstring(QCoreApplication::applicationDirPath() + "/images")),
      log_dir(ToUstring(QDir::homePath() + "/.Quillmere_log")),
      debug_file(ToUstring(QCoreApplication::applicationDirPath() + "/log/launcher.debug")),
      package_file(ToUstring(QCoreApplication::applicationDirPath() + "/package/quillmere.qpk")),
      conf_dir(ToUstring(QCoreApplication::applicationDirPath() + "/conf")) {}
