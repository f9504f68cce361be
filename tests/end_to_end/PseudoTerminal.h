#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <sys/types.h>

namespace end_to_end {

/// A program that runs at a terminal of its own, where it reads keys and shows its output and errors.
class PseudoTerminal
{
public:
    PseudoTerminal(const QString &program, const QStringList &arguments, unsigned short columns = 80);
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;
    ~PseudoTerminal();

    /// Reads until the program has shown the text; false when it ends or half a minute passes without.
    bool waitFor(const QByteArray &text);

    /// Types keys: a return key is "\n", Ctrl-C "\x03", Ctrl-D "\x04".
    void type(const QByteArray &keys) const;

    /// Waits for the end of the program, typing the keys again and again when there are any. The exit code; minus the
    /// signal when one ended the program.
    int finish(const QByteArray &keys = {});

    /// Everything that the program has shown so far.
    const QByteArray &shown() const { return m_shown; }

    /// The lines that are left to see, without blanks at their ends: a carriage return starts the line anew, and what
    /// follows covers what stood there.
    QStringList linesLeft() const;

private:
    enum class Reading { GotText, GotNothing, AtEnd };

    Reading read(int milliseconds);

    QByteArray m_shown;
    int m_terminal = -1;
    pid_t m_process = -1;
};

} // namespace end_to_end
