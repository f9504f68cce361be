#include "InputOutput.h"

#include "ProgramError.h"

#include <OrvaneExportKit/platform/FileReplacement.h>
#include <OrvaneExportKit/platform/PrintableText.h>

#include <QtCore/QFile>

#include <cstdio>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using platform::printableText;

namespace defaults {

namespace {

bool isTerminal(std::FILE *stream)
{
    return isatty(fileno(stream)) == 1;
}

/// Text of several lines, which may be indented by tabs, as a terminal shows it.
QByteArray printableLines(const QByteArray &text)
{
    QByteArray shown;
    for (const QByteArray &line : text.split('\n')) {
        QStringList cells = QString::fromUtf8(line).split(u'\t');
        for (QString &cell : cells) {
            cell = printableText(cell);
        }
        shown += cells.join(u'\t').toUtf8() + '\n';
    }
    shown.chop(1);
    return shown;
}

void writeResult(const QByteArray &text)
{
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly) || output.write(text) != text.size() || !output.flush()) {
        throw ProgramError(ExitCode::Failure, u"Standard output takes no more text: %1; free it and run again."_s.arg(
                                                  output.errorString()));
    }
}

} // namespace

QByteArray readFile(const QString &name)
{
    QFile file(name);
    const bool isOpen = name == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    QByteArray data;
    if (isOpen) {
        data = file.readAll();
    }
    if (file.error() != QFile::NoError) {
        throw ProgramError(ExitCode::Failure,
                           u"The file '%1' cannot be read: %2; name a file that can."_s.arg(name, file.errorString()));
    }
    return data;
}

void writeFile(const QString &name, const QByteArray &data)
{
    if (name == u"-") {
        printResult(data);
        return;
    }
    platform::FileReplacement file;
    if (file.write(name, data) && file.finish()) {
        return;
    }
    const platform::FileFailure failure = file.failure();
    const QString problem = failure.isInPlace
                                ? u"The file '%1' is written, but may be lost if the computer stops now: its "
                                  "folder was not written to disk (%2); correct this and try again."_s
                                : u"The file '%1' cannot be written: %2; name a file that can."_s;
    throw ProgramError(ExitCode::Failure, problem.arg(name, failure.reason));
}

void printList(const QStringList &items, ListSeparator separator)
{
    const bool areShown = separator == ListSeparator::LineFeed && isTerminal(stdout);
    QByteArray list;
    for (const QString &item : items) {
        list += (areShown ? printableText(item) : item).toUtf8();
        list += separator == ListSeparator::Null ? '\0' : '\n';
    }
    writeResult(list);
}

void printResult(const QByteArray &text)
{
    writeResult(isTerminal(stdout) ? printableLines(text) : text);
}

void printMessage(const QString &message)
{
    const QString shown = isTerminal(stderr) ? printableText(message) : message;
    const QByteArray line = (u"orvane-defaults: "_s + shown + u'\n').toLocal8Bit();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

} // namespace defaults
