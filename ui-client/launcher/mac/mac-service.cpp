// The upgrade decision, and control of the client.
#include "ui-client/launcher/mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <QFileInfo>
#include <QProcess>
#include <QStringList>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "config.h"
#include "file/file-op.h"
#include "install-layout.h"
#include "log.h"
#include "platform/desktop/open-application.h"
#include "ui-client/launcher/qt-text.h"

#define LOG_TAG "mac/mac-service"

namespace {

constexpr int kTimeout = 10000;
constexpr int kProbes = 5;
constexpr unsigned kPause = 1;  // seconds
constexpr char kLsregister[] =
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/Support/"
    "lsregister";
const ustring kLogComponent("service_debug");

int VersionNumber(const ustring& text) {
    return text.size() == 0 ? 0 : std::atoi(text.c_str());
}

// For kill(2), 0 and negative numbers are process groups. 1 is init.
bool MayBeClient(long pid) {
    return pid > 1 && pid != getpid() && static_cast<pid_t>(pid) == pid;
}

bool IsGone(pid_t pid) {
    return kill(pid, 0) != 0 && errno == ESRCH;
}

// Result: the exit code; negative if the tool cannot be run. Does not fork if the tool does not
// exist, because that would delay the client.
int RunLsregister(const QStringList& arguments) {
    return QFileInfo::exists(kLsregister) ? QProcess::execute(kLsregister, arguments) : -2;
}

}  // namespace

MacService::MacService() {
    timeout = kTimeout;
    user_app_path = GetUserQuillmereAppInstallPath();
}

MacService::~MacService() {}

MacService* MacService::GetInstace() {
    static MacService serv;
    return &serv;
}

void MacService::LoadSourceVerInfo() {
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
    Service::LoadTargetVersion();
}

void MacService::PreUpgrade() {
    LoadTargetVerInfo();
    LoadSourceVerInfo();
    Logger::LogMsg(LOG_LINE(DEBUG, "Source version: ('%s', '%s')\n"),
                   source_version.build_version.c_str(),
                   source_version.icon_overlay_version.c_str());
    Logger::LogMsg(LOG_LINE(DEBUG, "Target version: ('%s', '%s')\n"),
                   target_version.build_version.c_str(),
                   target_version.icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade() {
    const int source = VersionNumber(source_version.build_version);
    const int target = VersionNumber(target_version.build_version);
    Logger::LogMsg(LOG_LINE(DEBUG, "source version = %d, target version = %d\n"), source, target);
    const bool present = PerUserBinPathExist();
    return target > source || !present;
}

bool MacService::PerUserBinPathExist() {
    const ustring path = user_app_path + "/" + layout::kExecutable;
    return access(path.c_str(), F_OK) == 0;
}

int MacService::HandlePackageUpgrade() {
    if (PerUserBinPathExist()) {
        Logger::LogMsg(LOG_LINE(DEBUG, "local appdata exist\n"));
        StopService();
    }
    return PrepareUserEnv();
}

void MacService::StopService() {
    const ustring path = GetUserQuillmereInstallPath() + "/" + layout::kPidFile;
    if (!IsFileExist(path, false)) {
        Logger::LogMsg(LOG_LINE(DEBUG, "pid file '%s' does not exist, no need to terminate\n"),
                       path.c_str());
        return;
    }
    Config file;
    if (file.read(path) < 0) {
        Logger::LogMsg(LOG_LINE(NOTE, "Failed to read pid file '%s', not exist ?\n"), path.c_str());
        return;
    }
    const long number = std::atol(file["pid"].c_str());
    if (!MayBeClient(number)) {
        return;
    }
    const pid_t pid = static_cast<pid_t>(number);
    if (kill(pid, SIGTERM) != 0) {
        const int error = errno;
        if (error == ESRCH) {
            return;
        }
        Logger::LogMsg(LOG_LINE(ERROR, "kill: %s (%d)\n"), std::strerror(error), error);
    }
    for (int probe = 0; probe < kProbes; ++probe) {
        if (IsGone(pid)) {
            return;
        }
        sleep(kPause);
    }
    kill(pid, SIGKILL);
}

int MacService::LaunchPerUserBin() {
    const QString app = ToQString(GetUserQuillmereAppInstallPath());
    if (RunLsregister(QStringList{"-u", app}) != 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "Cannot unregister bundle, %s"), app.toUtf8().constData());
    }
    return OpenApplication(app, layout::kExecutable) ? 0 : -1;
}

void MacService::PostUpgrade() {
    if (LaunchPerUserBin() < 0) {
        Logger::LogMsg(LOG_LINE(ERROR, "Failed to launch Quillmere UI\n"));
    }
}
