#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QFile>

#include <cstdio>

namespace {

/// The most memory that this process has had resident, in kibibytes. (`getrusage` would count in what the process had
/// before it became this program.)
long long peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.simplified().split(' ').at(1).toLongLong();
            }
        }
    }
    return -1;
}

} // namespace

/// Reads the property list in the file that is named first; prints the error, if any, and on a second line the peak
/// memory.
int main(int argumentCount, char **arguments)
{
    if (argumentCount != 2) {
        return 2;
    }
    QFile file(QFile::decodeName(arguments[1]));
    if (!file.open(QIODevice::ReadOnly)) {
        return 2;
    }
    const auto result = platform::PropertyList::read(file.readAll());
    std::printf("%s\n%lld\n", qUtf8Printable(result.error), peakMemory());
    return 0;
}
