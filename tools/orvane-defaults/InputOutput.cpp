#include "InputOutput.h"

#include "ProgramError.h"

#include <OrvaneExportKit/platform/FileReplacement.h>

#include <QtCore/QFile>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace defaults {

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

void printResult(const QByteArray &text)
{
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly) || output.write(text) != text.size() || !output.flush()) {
        throw ProgramError(ExitCode::Failure, u"Standard output takes no more text: %1; free it and run again."_s.arg(
                                                  output.errorString()));
    }
}

void printMessage(const QString &message)
{
    const QByteArray line = (u"orvane-defaults: "_s + message + u'\n').toLocal8Bit();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

} // namespace defaults
