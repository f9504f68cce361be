#include "Terminal.h"

#include "HostError.h"

#include <QtCore/QList>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cwchar>
#include <iostream>
#include <string>

#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

constexpr int assumedWidth = 80;

volatile std::sig_atomic_t interrupted = 0;
struct sigaction earlierInterruptAction = {};
struct sigaction earlierTerminateAction = {};

extern "C" void rememberInterruption(int /*signal*/)
{
    interrupted = 1;
}

constexpr std::array crashSignals{SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};

// The line is kept ready, for nothing can be put together in a program that has crashed.
std::array<char, 4096> crashLine = {};
volatile std::sig_atomic_t crashLineLength = 0;

// A stack for the handler alone: the crash may be that of a full stack.
std::array<char, 65536> crashStack = {};

extern "C" void reportCrash(int signal)
{
    const auto length = static_cast<std::size_t>(crashLineLength);
    static_cast<void>(::write(STDERR_FILENO, crashLine.data(), length) < 0);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

int terminalWidth()
{
    winsize size = {};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : assumedWidth;
}

/// How many columns a terminal gives to a character: two to many East Asian ones, none to combining ones.
int columnsOf(char32_t character)
{
    return std::max(0, wcwidth(static_cast<wchar_t>(character)));
}

/// As much of the text as the columns hold, filled up with blanks.
QString fitted(const QString &text, int columns)
{
    QString shown;
    for (const char32_t character : text.toUcs4()) {
        const int needed = columnsOf(character);
        if (needed > columns) {
            break;
        }
        columns -= needed;
        shown += QChar::fromUcs4(character);
    }
    return shown + QString(columns, u' ');
}

} // namespace

void printResult(const QString &text)
{
    write(stdout, text);
}

void flushResults()
{
    errno = 0;
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        const QString reason = errno == 0 ? u"writing failed"_s : qt_error_string(errno);
        throw HostError(ExitCode::Output,
                        u"standard output takes no more text: %1; free it and run again"_s.arg(reason));
    }
}

void printMessage(const QString &line)
{
    write(stderr, line + u'\n');
}

void printWarning(const QString &message)
{
    printError(u"warning: "_s + message);
}

void printError(const QString &message)
{
    printMessage(u"orvane-host: "_s + message);
}

bool canAsk()
{
    return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
}

bool confirm(const QString &question)
{
    write(stderr, question + u' ');
    std::string answer;
    if (!std::getline(std::cin, answer)) {
        printMessage({}); // the end of the input leaves the cursor behind the question
    }
    const QString word = QString::fromLocal8Bit(answer.c_str()).trimmed().toLower();
    return word == u"y" || word == u"yes";
}

ProgressLine::ProgressLine() : m_isVisible(isatty(STDERR_FILENO) == 1)
{
}

ProgressLine::~ProgressLine()
{
    show({});
}

void ProgressLine::show(const QString &text) const
{
    if (m_isVisible) {
        // The last column stays free: a terminal may move on to the next line once it is filled.
        write(stderr, u'\r' + fitted(text, terminalWidth() - 1) + u'\r');
    }
}

InterruptionWatch::InterruptionWatch()
{
    interrupted = 0;
    struct sigaction action = {};
    action.sa_handler = rememberInterruption;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, &earlierInterruptAction);
    sigaction(SIGTERM, &action, &earlierTerminateAction);
}

InterruptionWatch::~InterruptionWatch()
{
    sigaction(SIGINT, &earlierInterruptAction, nullptr);
    sigaction(SIGTERM, &earlierTerminateAction, nullptr);
}

bool InterruptionWatch::wasInterrupted() const
{
    return interrupted != 0;
}

CrashMessage::CrashMessage()
{
    stack_t stack = {};
    stack.ss_sp = crashStack.data();
    stack.ss_size = crashStack.size();
    sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_handler = reportCrash;
    action.sa_flags = SA_ONSTACK | SA_NODEFER;
    for (const int signal : crashSignals) {
        sigaction(signal, &action, nullptr);
    }
}

CrashMessage::~CrashMessage()
{
    for (const int signal : crashSignals) {
        std::signal(signal, SIG_DFL);
    }
    stack_t stack = {};
    stack.ss_flags = SS_DISABLE;
    sigaltstack(&stack, nullptr);
}

void CrashMessage::set(const QString &message) const
{
    const QByteArray line = (u"orvane-host: "_s + message + u'\n').toLocal8Bit().right(qsizetype{crashLine.size()});
    crashLineLength = 0;
    std::copy(line.begin(), line.end(), crashLine.begin());
    crashLineLength = static_cast<std::sig_atomic_t>(line.size());
}

} // namespace host
