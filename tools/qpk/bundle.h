// Assembling of bundles: the launcher together with the client that it installs.
#pragma once

#include <string>

#include "tools/qpk/package-writer.h"

struct BundleOptions {
    std::string launcher;       // the executable
    std::string icon;           // of the window, a PNG
    std::string plugins;        // the directory of Qt's plug-ins
    bool copy_plugins = false;  // copy those that are needed, else link to the window systems'
    std::string output;         // the bundle, a directory
    std::string depfile;        // what the bundle depends on, in the syntax of make(1); "" for none
    PackageOptions package;     // all but the name of its file
};

// Makes the bundle, or brings one up to date: each file is replaced as a whole, the version last,
// so that a launcher which is started meanwhile finds either the former package or the new one.
// Throws Error.
void WriteBundle(const BundleOptions& options);
