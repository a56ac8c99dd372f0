// Where the parts of a package lie beside an application.
#pragma once

#include "ustring/ustring.h"

// Default places, all but `log_dir` below the directory of the running executable. The upgrade
// takes its paths from Service instead. The application object must exist.
struct PackageInfo {
    PackageInfo();

    ustring image_dir;     // <application directory>/images
    ustring log_dir;       // <home>/.Quillmere_log
    ustring debug_file;    // <application directory>/log/launcher.debug
    ustring package_file;  // <application directory>/package/quillmere.qpk
    ustring conf_dir;      // <application directory>/conf
};
