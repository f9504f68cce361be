#include <tests/end_to_end/PseudoTerminal.h>

#include <gtest/gtest.h>

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <csignal>
#include <vector>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace end_to_end {

namespace {

constexpr qint64 patience = 30000; // milliseconds
constexpr int betweenKeys = 50;    // milliseconds

} // namespace

PseudoTerminal::PseudoTerminal(const QString &program, const QStringList &arguments, unsigned short columns)
{
    QList<QByteArray> words = {program.toLocal8Bit()};
    for (const QString &argument : arguments) {
        words.append(argument.toLocal8Bit());
    }
    std::vector<char *> pointers;
    for (QByteArray &word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);

    winsize size = {};
    size.ws_col = columns;
    size.ws_row = 24;
    m_process = forkpty(&m_terminal, nullptr, nullptr, &size);
    if (m_process == 0) {
        execv(pointers.front(), pointers.data());
        _exit(127);
    }
    EXPECT_GT(m_process, 0) << "no pseudo-terminal";
}

PseudoTerminal::~PseudoTerminal()
{
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    close(m_terminal);
}

PseudoTerminal::Reading PseudoTerminal::read(int milliseconds)
{
    pollfd waiting = {m_terminal, POLLIN, 0};
    if (poll(&waiting, 1, milliseconds) <= 0) {
        return Reading::GotNothing;
    }
    char buffer[4096];
    const ssize_t count = ::read(m_terminal, buffer, sizeof buffer);
    if (count <= 0) {
        return Reading::AtEnd; // Linux reports the end of the program as an input error.
    }
    m_shown.append(buffer, count);
    return Reading::GotText;
}

bool PseudoTerminal::waitFor(const QByteArray &text)
{
    QElapsedTimer timer;
    timer.start();
    while (!m_shown.contains(text)) {
        if (timer.elapsed() > patience || read(betweenKeys) == Reading::AtEnd) {
            return false;
        }
    }
    return true;
}

void PseudoTerminal::type(const QByteArray &keys) const
{
    EXPECT_EQ(::write(m_terminal, keys.constData(), static_cast<std::size_t>(keys.size())), keys.size());
}

int PseudoTerminal::finish(const QByteArray &keys)
{
    QElapsedTimer timer;
    timer.start();
    for (Reading reading = Reading::GotText; reading != Reading::AtEnd; reading = read(betweenKeys)) {
        if (timer.elapsed() > patience) {
            ADD_FAILURE() << "the program does not end; it has shown " << m_shown.constData();
            kill(m_process, SIGKILL);
        }
        if (reading == Reading::GotNothing && !keys.isEmpty()) {
            type(keys);
        }
    }
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

QStringList PseudoTerminal::linesLeft() const
{
    QStringList lines;
    for (const QString &line : QString::fromUtf8(m_shown).split(u'\n', Qt::SkipEmptyParts)) {
        QString left;
        for (const QString &layer : line.split(u'\r')) {
            left = layer + left.sliced(std::min(layer.size(), left.size()));
        }
        while (left.endsWith(u' ')) {
            left.chop(1);
        }
        lines.append(left);
    }
    return lines;
}

} // namespace end_to_end
