#include "ManuscriptFile.h"

#include "Messages.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace host {

HostError manuscriptError(const QString &message)
{
    return {ExitCode::Manuscript, message};
}

QByteArray fileContent(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) { // opening a pipe would wait for one who writes into it
        throw manuscriptError(Texts::tr("%1 is a folder, a pipe or a device; put a file there").arg(quoted(path)));
    }
    QFile file(path);
    QByteArray content;
    if (file.open(QIODevice::ReadOnly)) {
        content = file.readAll();
    }
    if (file.error() != QFileDevice::NoError) {
        throw manuscriptError(Texts::tr("%1 can't be read: %2; check that it is there and that you may read it")
                                  .arg(quoted(path), file.errorString()));
    }
    return content;
}

QString placeAt(const QByteArray &content, qsizetype offset)
{
    const QByteArray before = content.first(offset);
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    return Texts::tr("line %1, column %2")
        .arg(before.count('\n') + 1)
        .arg(QString::fromUtf8(before.sliced(lineStart)).size() + 1);
}

} // namespace host
