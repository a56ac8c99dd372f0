// The upgrade on Mac OS X, and on what stands in for it.
#pragma once

#include "ui-client/launcher/quillmere-service.h"

// The platform's Service. It knows the client's executable, APP/Contents/MacOS/quillmere-ui, and
// its pid file, USER/ui.pid with a line `pid=<number>` (see Config), which the client writes and
// this only reads.
class MacService : public Service {
  public:
    MacService();
    ~MacService() override;

    // One object for the process, made at the first call. Any thread.
    static MacService* GetInstace();

    // Sends SIGTERM to the client named by the pid file, looks five times, a second apart, whether
    // it is gone, and sends SIGKILL. A pid that cannot be a client's (0, negative, 1, the
    // launcher's own, no number) gets no signal. Blocks for about 5 seconds at worst.
    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    // Fill one version record each.
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();

    // Whether the client's executable is there, executable or not.
    bool PerUserBinPathExist();

    // Takes APP out of the system's registry of applications, and opens it. Result: 0 if the
    // platform accepted the opening; -1 if not.
    static int LaunchPerUserBin();
};
