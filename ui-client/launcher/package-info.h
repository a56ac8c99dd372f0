// Default paths of a package next to an application.
#pragma once

#include "ustring/ustring.h"

// The upgrade uses the paths of Service instead. Precondition: the application object exists.
struct PackageInfo {
    PackageInfo();

    ustring image_dir;     // <application directory>/images
    ustring log_dir;       // <home>/.Quillmere_log
    ustring debug_file;    // <application directory>/log/launcher.debug
    ustring package_file;  // <application directory>/package/quillmere.qpk
    ustring conf_dir;      // <application directory>/conf
};
