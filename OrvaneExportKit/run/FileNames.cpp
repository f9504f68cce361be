#include <OrvaneExportKit/platform/Description.h>
#include <OrvaneExportKit/platform/OpenPanel.h>
#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/DocumentEquality.h>
#include <OrvaneExportKit/run/FileNames.h>

#include <QtCore/QFileInfo>

#include <algorithm>
#include <optional>
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

/// The documents that equal no earlier one, with their places. What is equal is decided by the equality of the later
/// document; hashes only find candidates, and only where its class is sure to have one that fits.
class FirstDocuments
{
public:
    explicit FirstDocuments(qsizetype count) { m_hashed.reserve(static_cast<std::size_t>(count)); }

    /// The place of the first document that equals this one, which stands at `place` behind all before.
    qsizetype add(const ExportDocument &document, qsizetype place)
    {
        const bool isHashed = platform::comparesByIdentity(document) || platform::hasOwnHash(document);
        qsizetype firstPlace = placeOfFirst(isHashed ? m_unhashed : m_all, document).value_or(place);
        if (isHashed) {
            firstPlace = std::min(firstPlace, m_hashed.try_emplace(&document, firstPlace).first->second);
        }
        if (firstPlace == place) {
            m_all.push_back({&document, place});
            if (!isHashed) {
                m_unhashed.push_back(m_all.back());
            }
        }
        return firstPlace;
    }

private:
    struct Place {
        const ExportDocument *document;
        qsizetype place;
    };

    static std::optional<qsizetype> placeOfFirst(const std::vector<Place> &places, const ExportDocument &document)
    {
        const auto found = std::find_if(places.begin(), places.end(), [&document](const Place &earlier) {
            return document.isEqual(*earlier.document);
        });
        return found == places.end() ? std::nullopt : std::optional(found->place);
    }

    std::unordered_map<const ExportDocument *, qsizetype, DocumentHash, DocumentEqual> m_hashed;
    std::vector<Place> m_unhashed;
    std::vector<Place> m_all; ///< both, in their order
};

/// For every document the place, from 1, of the first one that equals it.
std::vector<qsizetype> runningNumbers(const QList<const ExportDocument *> &documents)
{
    FirstDocuments firstDocuments(documents.size());
    std::vector<qsizetype> numbers;
    numbers.reserve(static_cast<std::size_t>(documents.size()));
    for (qsizetype index = 0; index < documents.size(); ++index) {
        if (documents[index] == nullptr) {
            throw platform::InvalidArgumentException("filenamesFromComponents: the document at index " +
                                                     std::to_string(index) + " is null");
        }
        numbers.push_back(firstDocuments.add(*documents[index], index + 1));
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
        texts.append(description(component));
    }
    return texts;
}

} // namespace platform
