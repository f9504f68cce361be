#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/FileNameChecks.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace platform {

namespace {

constexpr qsizetype longestNameInBytes = 255;

QString translated(const char *text)
{
    return QCoreApplication::translate("FileNameChecks", text);
}

bool isControl(QChar character)
{
    return character.unicode() < 0x20 || character.unicode() == 0x7F;
}

bool isReserved(QChar character)
{
    return QStringView(u"<>:\"/\\|?*").contains(character);
}

/// Whether Windows takes the name for a device: what stands before the first dot decides.
bool namesDevice(QStringView name)
{
    const QStringView stem = name.left(name.indexOf(u'.') < 0 ? name.size() : name.indexOf(u'.')).trimmed();
    const auto isStem = [stem](QStringView device) {
        return stem.compare(device, Qt::CaseInsensitive) == 0;
    };
    constexpr QStringView devices[] = {u"CON", u"PRN", u"AUX", u"NUL"};
    if (std::any_of(std::begin(devices), std::end(devices), isStem)) {
        return true;
    }
    return stem.size() == 4 && stem.back() >= u'1' && stem.back() <= u'9' &&
           (stem.startsWith(u"COM", Qt::CaseInsensitive) || stem.startsWith(u"LPT", Qt::CaseInsensitive));
}

QString refusalOfControl()
{
    return translated("The name holds a control character.");
}

/// Why some file system refuses the name, or an empty string.
QString refusal(const QString &name)
{
    if (name.isEmpty()) {
        return translated("The name is empty.");
    }
    if (std::any_of(name.begin(), name.end(), isControl)) {
        return refusalOfControl();
    }
    const auto reserved = std::find_if(name.begin(), name.end(), isReserved);
    if (reserved != name.end()) {
        return translated("The name holds the character %1, which Windows reserves.").arg(*reserved);
    }
    if (namesDevice(name)) {
        return translated("The name stands for a device on Windows.");
    }
    if (name.endsWith(u'.') || name.endsWith(u' ')) {
        return translated("The name ends with a dot or a blank.");
    }
    if (name.toUtf8().size() > longestNameInBytes) {
        return translated("The name is longer than 255 bytes.");
    }
    return {};
}

/// Why the system can have no file at a path, or an empty string.
QString impossibility(const QString &path)
{
    if (path.contains(QChar::Null)) {
        return refusalOfControl();
    }
    std::error_code error;
    const std::filesystem::file_type type =
        std::filesystem::symlink_status(QFileInfo(path).filesystemFilePath(), error).type();
    return type == std::filesystem::file_type::none ? QString::fromStdString(error.message()) : QString();
}

/// Asks `reasonFor` about every path; where it answers with a reason, the path is a finding.
template <typename ReasonFor>
QList<PathFinding> findings(const QStringList &paths, ReasonFor reasonFor)
{
    QList<PathFinding> found;
    for (qsizetype index = 0; index < paths.size(); ++index) {
        const QString reason = reasonFor(paths[index]);
        if (!reason.isEmpty()) {
            found.append({index, paths[index], reason});
        }
    }
    return found;
}

} // namespace

QList<PathFinding> repeatedPaths(const QStringList &paths)
{
    QHash<QString, int> counts;
    counts.reserve(paths.size());
    for (const QString &path : paths) {
        ++counts[path];
    }
    return findings(paths, [&counts](const QString &path) {
        const int count = counts.value(path);
        return count == 1 ? QString() : translated("%1 documents would get this name.").arg(count);
    });
}

QList<PathFinding> existingPaths(const QStringList &paths)
{
    return findings(paths, [](const QString &path) {
        if (path.contains(QChar::Null)) {
            return refusalOfControl();
        }
        const QFileInfo info(path);
        if (info.isDir()) {
            return translated("A folder with this name exists.");
        }
        return info.exists() || info.isSymLink() ? translated("A file with this name exists.") : QString();
    });
}

QList<PathFinding> impossiblePaths(const QStringList &paths)
{
    return findings(paths, impossibility);
}

QList<PathFinding> refusedNames(const QStringList &paths)
{
    return findings(paths, [](const QString &path) { return refusal(lastPathComponent(path)); });
}

} // namespace platform
