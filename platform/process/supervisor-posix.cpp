// Two processes: a supervisor, and attempts at the run.
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdlib>

#include "platform/process/supervisor.h"
#include "unique-fd.h"

namespace {

constexpr int kStartLimit = 5000;  // milliseconds, for each stage up to kReady
constexpr int kExitLimit = 3000;   // from kOpened on
constexpr int kNoLimit = -1;

struct Report {
    Stage stage = Stage::kStarted;
    unsigned char backups = 0;
};

struct End {
    Report last;
    bool hung = false;
    int status = 0;  // as waitpid(2) returns it; unused after kOpened
};

// In the supervisor: the child, for the signal handler. In the child: 0.
volatile pid_t g_child = 0;

// In the child: where the stages go.
int g_reports = -1;
std::atomic<Stage> g_stage(Stage::kStarted);

// With SA_RESETHAND, the second signal has the default effect.
void EndBoth(int number) {
    if (g_child > 0) {
        kill(g_child, number);
    }
    raise(number);
}

void HandleEndingSignals() {
    struct sigaction action = {};
    action.sa_handler = EndBoth;
    action.sa_flags = SA_RESETHAND;
    for (const int number : {SIGTERM, SIGINT}) {
        struct sigaction former;
        sigaction(number, nullptr, &former);
        if (former.sa_handler != SIG_IGN) {
            sigaction(number, &action, nullptr);
        }
    }
}

// Forks with the signals blocked, so that the handler always knows the child.
void Fork() {
    sigset_t blocked, former;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    sigaddset(&blocked, SIGINT);
    sigprocmask(SIG_BLOCK, &blocked, &former);
    g_child = fork();
    sigprocmask(SIG_SETMASK, &former, nullptr);
}

int Limit(Stage reached) {
    if (reached < Stage::kReady) {
        return kStartLimit;
    }
    return reached == Stage::kOpened ? kExitLimit : kNoLimit;
}

// Result: 1 with a report or the end of the pipe, 0 when the time is over.
int WaitForReport(int reports, int limit) {
    pollfd ready = {reports, POLLIN, 0};
    int result = -1;
    do {
        result = poll(&ready, 1, limit);
    } while (result < 0 && errno == EINTR);
    return result;
}

// Follows the child's reports to the end of the process, or kills it when a limit is over. The pipe
// also closes when the child becomes the client, after kOpened.
End Watch(int reports) {
    End end;
    for (;;) {
        end.hung = WaitForReport(reports, Limit(end.last.stage)) == 0;
        if (end.hung || read(reports, &end.last, sizeof end.last) <= 0) {
            break;
        }
    }
    if (end.hung) {
        kill(g_child, SIGKILL);
    }
    if (end.last.stage != Stage::kOpened) {
        waitpid(g_child, &end.status, 0);
    }
    return end;
}

// A second instance ends with 0 before it is ready.
bool IsOver(const End& end) {
    return end.last.stage == Stage::kOpened ||
           (WIFEXITED(end.status) && WEXITSTATUS(end.status) == 0);
}

StartMode NextMode(StartMode mode, const End& end) {
    const StartMode next = static_cast<StartMode>(static_cast<int>(mode) + 1);
    if (end.last.stage >= Stage::kReady) {
        return std::max(next, StartMode::kAfterRepair);
    }
    const bool hung_display = end.hung && end.last.stage == Stage::kStarted;
    return hung_display ? std::max(next, StartMode::kWithoutDisplay) : next;
}

std::string Cause(const End& end) {
    const std::string when =
        end.last.stage >= Stage::kReady ? "during the run" : "before its window was ready";
    if (end.hung) {
        return "did not answer " + when;
    }
    if (WIFSIGNALED(end.status)) {
        return std::string("was ended by a signal (") + strsignal(WTERMSIG(end.status)) + ") " +
               when;
    }
    return "exited with " + std::to_string(WEXITSTATUS(end.status)) + " " + when;
}

void ExitInTheRun() {
    if (g_stage != Stage::kOpened) {
        _exit(EXIT_FAILURE);
    }
}

}  // namespace

int Supervise(int (*launcher)(const Attempt&, int, char**), int argc, char** argv) {
    HandleEndingSignals();
    Attempt attempt;
    for (;;) {
        int ends[2] = {-1, -1};
        const bool has_pipe = pipe2(ends, O_CLOEXEC) == 0;
        const UniqueFd reports(ends[0]);
        UniqueFd reporter(ends[1]);
        if (has_pipe) {
            Fork();
        }
        if (!has_pipe || g_child < 0) {
            attempt.mode = std::max(attempt.mode, StartMode::kWithoutDisplay);
            return launcher(attempt, argc, argv);
        }
        if (g_child == 0) {
            g_reports = reporter.release();
            return launcher(attempt, argc, argv);
        }
        reporter.reset();
        const End end = Watch(reports.get());
        if (IsOver(end) || attempt.mode == StartMode::kOpenOnly) {
            return EXIT_SUCCESS;
        }
        attempt.mode = NextMode(attempt.mode, end);
        attempt.cause = Cause(end);
        if (end.last.stage >= Stage::kMoved) {
            attempt.reached = end.last.stage;
            attempt.backups = end.last.backups;
        }
    }
}

void ReportStage(Stage stage, unsigned char backups) {
    g_stage = stage;
    if (stage == Stage::kReady) {
        std::atexit(ExitInTheRun);
    }
    // Without a supervisor, or after its end, nobody reads the report.
    const Report report = {stage, backups};
    while (write(g_reports, &report, sizeof report) < 0 && errno == EINTR) {
    }
}
