#include "InputOutput.h"

#include "ProgramError.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

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
    QSaveFile file(name);
    // Flushed here, for commit() would put a file in place whose last bytes found the disk full.
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.flush() || !file.commit()) {
        throw ProgramError(ExitCode::Failure, u"The file '%1' cannot be written: %2; name a file that can."_s.arg(
                                                  name, file.errorString()));
    }
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
