// A home of the test's own, and a log with everything in it.
#pragma once

#include <QCoreApplication>

#include "log.h"
#include "temp_dir.h"
#include "ui-client/launcher/str-table.h"

class ServiceTest : public testing::Test {
  protected:
    ServiceTest() {
        static int argc = 0;
        static const QCoreApplication application(argc, nullptr);
        StrTable::InitStrTable();
        qputenv("HOME", home.path().c_str());
        WriteFile(home / "levels", "launcher_debug=7\nservice_debug=7\nextractor_debug=7\n");
        Logger::Initialize(Logger::TYPE_FILE, LogPath().c_str(), (home / "levels").c_str(), 50);
    }
    ~ServiceTest() override { Logger::Destroy(); }

    std::string LogPath() const { return home / "log"; }
    int LogLines(const std::string& part) const {
        const std::string log = ReadFile(LogPath());
        int count = 0;
        for (std::size_t at = log.find(part); at != std::string::npos; at = log.find(part, at + 1)) { ++count; }
        return count;
    }

    const TempDir home;
};
