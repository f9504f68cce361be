#include <OrvaneExportKit/platform/OpenPanel.h>
#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/FileNames.h>

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>

#include <unordered_map>
#include <vector>

namespace {

struct Destination {
    QString folder;
    QString extension;
    QString baseName;
};

Destination resolvedDestination(const QString &path, const QString &pathExtension)
{
    if (QFileInfo(path).isDir()) {
        const QString required = platform::requiredFileType();
        return {path, required.isEmpty() ? pathExtension : required, {}};
    }
    return {platform::deletingLastPathComponent(path), platform::pathExtension(path),
            platform::deletingPathExtension(platform::lastPathComponent(path))};
}

struct DocumentHash {
    std::size_t operator()(const ExportDocument *document) const { return document->hash(); }
};

struct DocumentEqual {
    bool operator()(const ExportDocument *a, const ExportDocument *b) const { return a->isEqual(*b); }
};

/// For every document the place, from 1, of the first one that equals it.
std::vector<qsizetype> runningNumbers(const QList<const ExportDocument *> &documents)
{
    std::unordered_map<const ExportDocument *, qsizetype, DocumentHash, DocumentEqual> firstPlaces;
    firstPlaces.reserve(static_cast<std::size_t>(documents.size()));
    std::vector<qsizetype> numbers;
    numbers.reserve(static_cast<std::size_t>(documents.size()));
    for (qsizetype index = 0; index < documents.size(); ++index) {
        if (documents[index] == nullptr) {
            throw platform::InvalidArgumentException("filenamesFromComponents: the document at index " +
                                                     std::to_string(index) + " is null");
        }
        numbers.push_back(firstPlaces.try_emplace(documents[index], index + 1).first->second);
    }
    return numbers;
}

QString fileName(const QString &pattern, const ExportDocument &document, qsizetype number,
                 const Destination &destination, bool convertSpaces)
{
    QString name = pattern;
    name.replace(QLatin1String("<1>"), QString::number(number).rightJustified(3, u'0'));
    name.replace(QLatin1String("<2>"), document.name());
    name.replace(QLatin1String("<3>"), document.status());
    name.replace(QLatin1String("<4>"), document.label());
    name.replace(QLatin1String("<5>"), destination.baseName);
    name.replace(u'/', u':');
    if (!destination.extension.isEmpty()) {
        name += u'.' + destination.extension;
    }
    if (convertSpaces) {
        name.replace(u' ', u'_');
    }
    return name;
}

QString componentText(const QVariant &component)
{
    switch (component.typeId()) {
    case QMetaType::Bool:
        return component.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QDateTime:
        return component.toDateTime().toString(Qt::ISODateWithMs);
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
    case QMetaType::QStringList:
        return QString::fromUtf8(QJsonDocument::fromVariant(component).toJson(QJsonDocument::Compact));
    default:
        break;
    }
    if (!component.isValid() || component.canConvert<QString>()) {
        return component.toString();
    }
    return u'<' + QLatin1String(component.typeName()) + u'>';
}

} // namespace

namespace KZStringExportAdditions {

QStringList filenamesFromComponents(const QString &destination, const QStringList &components,
                                    const QList<const ExportDocument *> &documents, bool convertSpaces,
                                    const QString &pathExtension)
{
    const Destination resolved = resolvedDestination(destination, pathExtension);
    const std::vector<qsizetype> numbers = runningNumbers(documents);
    const QString pattern = components.join(QString());
    QStringList paths;
    paths.reserve(documents.size());
    for (qsizetype index = 0; index < documents.size(); ++index) {
        const qsizetype number = numbers[static_cast<std::size_t>(index)];
        const QString name = fileName(pattern, *documents[index], number, resolved, convertSpaces);
        paths.append(platform::appendingPathComponent(resolved.folder, name));
    }
    return paths;
}

} // namespace KZStringExportAdditions

namespace platform {

QStringList componentTexts(const QVariantList &components)
{
    QStringList texts;
    texts.reserve(components.size());
    for (const QVariant &component : components) {
        texts.append(componentText(component));
    }
    return texts;
}

} // namespace platform
