#pragma once

#include <OrvaneExportKit/platform/Coder.h>

#include <optional>

namespace platform {

class KeyedDecoder;

/// Reads the fields of one object of a keyed archive, or the outermost fields of the archive.
///
/// Beside the operations of a coder there are those that the classes known by themselves need for their layouts.
class KeyedFieldReader final : public Coder
{
public:
    /// The references are valid for as long as the reader.
    KeyedFieldReader(KeyedDecoder &decoder, const QVariantMap &outermostFields);
    KeyedFieldReader(KeyedDecoder &decoder, const QVariantMap &fields, quint32 index, const QString &className);

    bool allowsKeyedCoding() const override { return true; }
    bool containsValueForKey(const QString &key) const override;
    QVariant decodeObjectForKey(const QString &key) override;
    float decodeFloatForKey(const QString &key) override;
    double decodeDoubleForKey(const QString &key) override;
    qint64 decodeInt64ForKey(const QString &key) override;
    bool decodeBoolForKey(const QString &key) override;
    QByteArray decodeBytesForKey(const QString &key) override;
    QVariant decodeObject() override;
    void decodeValueOfObjCType(const char *type, void *address) override;

    /// What the field of an object of an unknown class holds, by the key that stands in the archive: an object, a plain
    /// value, or lists and maps of them; invalid for a missing one.
    QVariant decodeField(const QString &archivedKey);

    /// The string that stands in a field, not as an object.
    QString stringForKey(const QString &key) const;

    /// The string that a field refers to.
    QString stringObjectForKey(const QString &key);

    /// The bytes of a data object that the field refers to, or that stand in the field.
    QByteArray dataForKey(const QString &key);

    /// The number in a field as it stands: a `bool`, `qint64`, `quint64` or `double`; 0 for a missing one.
    QVariant numberForKey(const QString &key) const;

    /// A number that must be an integer of 0 or more; 0 for a missing one.
    quint64 countForKey(const QString &key) const;

    /// The objects of a field that holds an array of references, none of which may be to nothing.
    QVariantList objectsForKey(const QString &key);

    /// The objects of fields that are numbered from 0, up to the first that is missing: `NS.object.0` ...
    QVariantList numberedObjects(const QString &prefix);

    KeyedDecoder &decoder() const { return m_decoder; }

    /// Throws an `ArchiveException` whose place is this object.
    [[noreturn]] void fail(const QString &complaint) const;

private:
    const QVariant *field(const QString &key) const;
    QVariant decodeInline(const QVariant &value, const QString &key);
    QVariant decodeReference(const QVariant &reference, const QString &key);
    QVariant requireObject(const QVariant &reference, const QString &key);

    KeyedDecoder &m_decoder;
    const QVariantMap &m_fields;
    std::optional<quint32> m_index; ///< none for the outermost fields
    QString m_className;
    int m_unnamedFieldsRead = 0;
};

} // namespace platform
