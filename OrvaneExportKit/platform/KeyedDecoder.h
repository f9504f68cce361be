#pragma once

#include <OrvaneExportKit/platform/KeyedArchive.h>
#include <OrvaneExportKit/platform/KeyedClasses.h>

#include <QtCore/QVariant>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace platform {

class KeyedEncoder;

/// Decodes the objects of a keyed archive, each once.
class KeyedDecoder
{
public:
    explicit KeyedDecoder(std::shared_ptr<const KeyedArchive> archive);
    KeyedDecoder(const KeyedDecoder &) = delete;
    KeyedDecoder &operator=(const KeyedDecoder &) = delete;
    ~KeyedDecoder();

    const KeyedArchive &archive() const { return *m_archive; }

    /// The object of an index that the archive has; invalid for none. Throws an `ArchiveException` when it is
    /// malformed.
    QVariant decode(quint32 index);

    /// Decodes all fields of the objects of unknown classes that were handed out, so that whoever reads them later
    /// meets nothing malformed.
    void decodeUnknownObjects();

    /// Called for what decoding makes in memory beyond what it shares with the archive, in bytes. Throws an
    /// `ArchiveException` when all of it is out of proportion to the length of the archive: in a binary archive a few
    /// bytes can say over and over again that here, too, stands what stands there.
    void spend(quint64 bytes);

    /// Roughly how long it takes to compare the map with an equal one, in values inside it; small values that share
    /// each other can hold more of them than anybody can count to. The map is one that was decoded here.
    quint64 valuesInside(const QVariantMap &map) const;

    /// Called for every comparison of decoded maps, with the values in them. Throws an `ArchiveException` when there
    /// are too many.
    void spendComparison(quint64 values);

    /// A number that equal values of the same type share, and no others; nothing for a value that cannot be told from
    /// others. The value is one that was decoded here.
    std::optional<quint64> numberOf(const QVariant &value);

private:
    struct Class {
        QString name;
        KeyedDecode decode; ///< empty for an unknown class
    };

    /// What an object holds, the objects inside it included.
    struct Extent {
        int nesting = 1;
        quint64 values = 1;
    };

    struct Instance {
        bool inProgress = true;
        QVariant value;
        Extent extent;
    };

    const Instance &decodeInstance(quint32 index);
    void enclose(const Extent &inner);
    const Instance &unknownObject(quint32 index);
    const Class &classAt(quint32 classIndex);

    std::shared_ptr<const KeyedArchive> m_archive;
    std::unordered_map<quint32, Instance> m_instances;        ///< by index, those that were begun
    std::unordered_map<quint32, Class> m_classes;             ///< by index
    std::vector<quint32> m_unknownObjects;                    ///< handed out, their fields not yet decoded
    std::unordered_map<const void *, quint64> m_valuesInside; ///< by the address of the first key
    std::unique_ptr<KeyedEncoder> m_numbers;                  ///< gives equal values the same reference
    int m_unnumbered = 0;
    Extent m_extent; ///< of the object in progress, so far
    int m_nesting = 0;
    quint64 m_spent = 0;
    quint64 m_compared = 0;
};

} // namespace platform
