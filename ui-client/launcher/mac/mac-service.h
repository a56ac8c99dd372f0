// Service for Mac OS X and its stand-ins.
#pragma once

#include "ui-client/launcher/quillmere-service.h"

// Knows the client's executable, APP/Contents/MacOS/quillmere-ui, and the pid file that the client
// writes, USER/ui.pid with a line `pid=<number>` (see Config).
class MacService : public Service {
  public:
    MacService();
    ~MacService() override;

    // An object for the whole process, created by the first call. Any thread.
    static MacService* GetInstace();

    // Sends SIGTERM to the process in the pid file, probes it five times, a second apart, and sends
    // SIGKILL if it still exists. Sends no signal to 0, negative numbers, 1 and this process.
    // Blocks for up to 5 seconds.
    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    // Each loads one version record.
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();

    // Whether the client's executable exists, with any permissions.
    bool PerUserBinPathExist();

    // Removes APP from the system's application registry and opens it. Result: 0 if the client was
    // started; -1.
    static int LaunchPerUserBin();
};
