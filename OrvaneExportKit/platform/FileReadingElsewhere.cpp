#include <OrvaneExportKit/platform/FileReading.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace platform {

FileReading readFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return {FileReading::Outcome::Missing, {}, {}};
    }
    if (!info.isFile()) {
        return {FileReading::Outcome::NoFile, {}, {}};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {
            info.isReadable() ? FileReading::Outcome::Failed : FileReading::Outcome::Hidden, {}, file.errorString()};
    }
    const QByteArray data = file.readAll();
    if (file.error() != QFile::NoError) {
        return {FileReading::Outcome::Failed, {}, file.errorString()};
    }
    return {FileReading::Outcome::Read, data, {}};
}

} // namespace platform
