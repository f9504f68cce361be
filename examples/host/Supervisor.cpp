#include "Supervisor.h"

#include "HostError.h"
#include "Terminal.h"
#include "WorkRecord.h"

#include <QtCore/QString>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <new>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

constexpr std::array interruptions{SIGINT, SIGTERM};

/// Those by which someone outside ends a program.
constexpr std::array requestsToEnd{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE};

volatile pid_t worker = 0;

extern "C" void passInterruptionOn(int signal)
{
    if (workRecord().stopsByItself != 0) {
        workRecord().wasInterrupted = 1;
    } else {
        ::kill(worker, signal);
    }
}

extern "C" void rememberInterruption(int /*signal*/)
{
    workRecord().wasInterrupted = 1;
}

/// Lets the first interruption call the function, and a second one end the program. Those that the program was started
/// to ignore, as in the background of a script, stay ignored.
void handleInterruptions(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : interruptions) {
        struct sigaction before = {};
        ::sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            ::sigaction(signal, &action, nullptr);
        }
    }
}

/// While the object lives, interruptions wait.
class HeldInterruptions
{
public:
    HeldInterruptions()
    {
        sigset_t held = {};
        ::sigemptyset(&held);
        for (const int signal : interruptions) {
            ::sigaddset(&held, signal);
        }
        ::pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }
    HeldInterruptions(const HeldInterruptions &) = delete;
    HeldInterruptions &operator=(const HeldInterruptions &) = delete;
    ~HeldInterruptions() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before = {};
};

/// False when the system has no memory to share.
bool shareWorkRecord()
{
    void *memory = ::mmap(nullptr, sizeof(WorkRecord), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        return false;
    }
    keepWorkRecordIn(*new (memory) WorkRecord);
    return true;
}

/// Starts the worker; false when the system refuses.
bool startWorker()
{
    const HeldInterruptions held;
    worker = shareWorkRecord() ? ::fork() : -1;
    if (worker > 0) {
        handleInterruptions(passInterruptionOn);
    }
    return worker != -1;
}

/// A worker does not outlive the process that supervises it.
void endWith(pid_t supervisor)
{
#ifdef Q_OS_LINUX
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
    if (::getppid() != supervisor) {
        std::_Exit(EXIT_FAILURE);
    }
}

void noteEnd(int exitCode)
{
    workRecord().exitCode = exitCode;
    workRecord().isFinished = true;
}

/// How the worker has ended, as `waitpid` says it.
int endOfWorker()
{
    int status = 0;
    while (::waitpid(worker, &status, 0) == -1 && errno == EINTR) {
        // An interruption was passed on.
    }
    return status;
}

void reportUnfinishedWork(const QString &what)
{
    const ProgressLine line; // its end takes off what the worker has left in the line
    const WorkRecord &record = workRecord();
    const QString plugin = QString::fromUtf8(record.plugin.data());
    const QString subject = plugin.isEmpty()
                                ? u"the program or one of its plug-ins %1"_s.arg(what)
                                : u"%1 %2 on %3"_s.arg(plugin, what, QString::fromUtf8(record.part.data()));
    printError(subject + u"; the files that are listed are whole, all others are as they were; change the document or "
                         "the choices, or take the plug-in away, and try again"_s);
}

int exitCodeOf(int status)
{
    if (WIFEXITED(status) && workRecord().isFinished && WEXITSTATUS(status) == workRecord().exitCode) {
        return workRecord().exitCode;
    }
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        if (std::find(requestsToEnd.begin(), requestsToEnd.end(), signal) != requestsToEnd.end()) {
            std::signal(signal, SIG_DFL);
            std::raise(signal);
        }
        reportUnfinishedWork(u"crashed (signal %1)"_s.arg(signal));
    } else {
        reportUnfinishedWork(u"ended the program"_s);
    }
    return static_cast<int>(ExitCode::Plugin);
}

} // namespace

int supervised(const std::function<int()> &work)
{
    const pid_t supervisor = ::getpid();
    if (!startWorker()) {
        printError(u"no process can be started for the plug-ins: %1; end other programs and try again"_s.arg(
            qt_error_string(errno)));
        return static_cast<int>(ExitCode::Plugin);
    }
    if (worker == 0) {
        endWith(supervisor);
        const int exitCode = work();
        noteEnd(exitCode);
        return exitCode;
    }
    return exitCodeOf(endOfWorker());
}

void endWork(int exitCode)
{
    noteEnd(exitCode);
    std::_Exit(exitCode);
}

InterruptionWatch::InterruptionWatch() : m_brokenPipeBefore(std::signal(SIGPIPE, SIG_IGN))
{
    workRecord().wasInterrupted = 0;
    workRecord().stopsByItself = 1;
    handleInterruptions(rememberInterruption);
}

InterruptionWatch::~InterruptionWatch()
{
    workRecord().stopsByItself = 0;
    handleInterruptions(SIG_DFL);
    std::signal(SIGPIPE, m_brokenPipeBefore);
}

bool InterruptionWatch::wasInterrupted() const
{
    return workRecord().wasInterrupted != 0;
}

} // namespace host
