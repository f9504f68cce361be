#include "AtomicFile.h"

#include "HostError.h"
#include "Messages.h"

#include <QtCore/QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

/// A disk that fills up takes a part of the content first; the attempt to write the rest tells the reason.
bool writeAll(QSaveFile &file, const QByteArray &content)
{
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 count = file.write(content.constData() + written, content.size() - written);
        if (count <= 0) {
            return false;
        }
        written += count;
    }
    return true;
}

} // namespace

void writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    // Unbuffered, because commit() does not notice when the rest of a buffer can't be written.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, content) || !file.commit()) {
        throw HostError(
            ExitCode::Output,
            Texts::tr("%1 can't be written: %2; see to that and try again").arg(quoted(path), file.errorString()));
    }
}

} // namespace host
