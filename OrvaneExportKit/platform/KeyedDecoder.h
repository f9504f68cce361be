#pragma once

#include <OrvaneExportKit/platform/KeyedArchive.h>
#include <OrvaneExportKit/platform/KeyedClasses.h>

#include <QtCore/QVariant>

#include <memory>
#include <unordered_map>
#include <vector>

namespace platform {

/// Decodes the objects of a keyed archive, each once.
class KeyedDecoder
{
public:
    explicit KeyedDecoder(std::shared_ptr<const KeyedArchive> archive);

    const KeyedArchive &archive() const { return *m_archive; }

    /// The object of an index that the archive has; invalid for none. Throws an `ArchiveException` when it is
    /// malformed.
    QVariant decode(quint32 index);

    /// Decodes all fields of the objects of unknown classes that were handed out, so that whoever reads them later
    /// meets nothing malformed.
    void decodeUnknownObjects();

private:
    struct Class {
        QString name;
        KeyedDecode decode; ///< empty for an unknown class
    };

    struct Instance {
        bool inProgress = true;
        QVariant value;
    };

    QVariant decodeInstance(quint32 index);
    QVariant unknownObject(quint32 index);
    const Class &classAt(quint32 classIndex);

    std::shared_ptr<const KeyedArchive> m_archive;
    std::unordered_map<quint32, Instance> m_instances; ///< by index, those that were begun
    std::unordered_map<quint32, Class> m_classes;      ///< by index
    std::vector<quint32> m_unknownObjects;             ///< handed out, their fields not yet decoded
    int m_nesting = 0;
};

} // namespace platform
