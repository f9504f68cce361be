#include "Terminal.h"

#include "HostError.h"
#include "Messages.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <algorithm>
#include <cerrno>
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

/// Why standard output took no more text at first; 0 as long as it takes all.
int outputError = 0;

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

void writeResult(const QString &text)
{
    errno = 0;
    write(stdout, text);
    if ((std::fflush(stdout) != 0 || std::ferror(stdout) != 0) && outputError == 0) {
        outputError = errno == 0 ? EIO : errno;
    }
}

bool isTerminal(std::FILE *stream)
{
    return isatty(fileno(stream)) == 1;
}

/// Lines of text as a stream shows them.
QString shownOn(std::FILE *stream, const QString &text)
{
    if (!isTerminal(stream)) {
        return text;
    }
    QStringList lines = text.split(u'\n');
    for (QString &line : lines) {
        line = printable(line);
    }
    return lines.join(u'\n');
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
    writeResult(shownOn(stdout, text));
}

void printItem(const QString &item, ListSeparator separator)
{
    if (separator == ListSeparator::Null) {
        writeResult(item + QChar(QChar::Null));
    } else {
        writeResult((isTerminal(stdout) ? printable(item) : item) + u'\n');
    }
}

void requireAllPrinted()
{
    if (outputError != 0) {
        throw HostError(ExitCode::Output, u"standard output takes no more text: %1; free it and run again"_s.arg(
                                              qt_error_string(outputError)));
    }
}

void printMessage(const QString &line)
{
    write(stderr, shownOn(stderr, line) + u'\n');
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
    return isTerminal(stdin) && isTerminal(stderr);
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

ProgressLine::ProgressLine() : m_isVisible(isTerminal(stderr))
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

} // namespace host
