// Runs the tests in a child process with its own $TMPDIR, and reaps orphaned children (PR_SET_CHILD_SUBREAPER).
#include <sys/prctl.h>
#include <sys/wait.h>

#include <csignal>

#include "temp_dir.h"

namespace {

int RunTests(const TempDir& dir, int argc, char** argv) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::filesystem::permissions(dir.path(), std::filesystem::perms{0755});  // for any user
    std::filesystem::create_directory(dir / "run");
    std::filesystem::permissions(dir / "run", std::filesystem::perms{0700});
    setenv("TMPDIR", dir.path().c_str(), 1);
    setenv("XDG_RUNTIME_DIR", (dir / "run").c_str(), 1);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

void EndOrphans() {
    std::ifstream children("/proc/self/task/" + std::to_string(getpid()) + "/children");
    for (pid_t orphan = 0; children >> orphan;) {
        kill(orphan, SIGKILL);
        waitpid(orphan, nullptr, 0);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const TempDir dir;
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t tests = fork();
    if (tests == 0) { std::exit(RunTests(dir, argc, argv)); }
    int status = 0;
    while (wait(&status) != tests) {}
    EndOrphans();
    if (WIFSIGNALED(status)) { psignal(WTERMSIG(status), argv[0]); }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
