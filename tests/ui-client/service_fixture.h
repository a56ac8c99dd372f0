// A fixture for the tests of Service and Extractor.
#pragma once

#include <QCoreApplication>

#include "log.h"
#include "support.h"
#include "ui-client/launcher/str-table.h"

// A temporary home directory, and a log with all levels.
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
    int LogLines(const QString& part) const { return QString::fromStdString(ReadFile(LogPath())).count(part); }

    const TempDir home;
};
