#pragma once

#include <OrvaneExportKit/platform/Coder.h>

namespace platform {

class KeyedEncoder;

/// Writes the fields of one object of a keyed archive, or the outermost fields of the archive.
///
/// Beside the operations of a coder there are those that the classes known by themselves need for their layouts.
class KeyedFieldWriter final : public Coder
{
public:
    explicit KeyedFieldWriter(KeyedEncoder &encoder) : m_encoder(encoder) {}

    /// What was written so far, as it stands in the archive.
    const QVariantMap &fields() const { return m_fields; }

    bool allowsKeyedCoding() const override { return true; }
    void encodeObject(const QVariant &object, const QString &key) override;
    void encodeFloat(float value, const QString &key) override;
    void encodeDouble(double value, const QString &key) override;
    void encodeInt64(qint64 value, const QString &key) override;
    void encodeBool(bool value, const QString &key) override;
    void encodeBytes(const QByteArray &bytes, const QString &key) override;
    void encodeObject(const QVariant &object) override;
    void encodeValueOfObjCType(const char *type, const void *address) override;

    /// Writes a string into the field, not as an object.
    void encodeString(const QString &string, const QString &key);

    void encodeCount(quint64 count, const QString &key);

    /// The index of the object in the archive, which equal values share.
    quint32 reference(const QVariant &object);

    /// Writes references under the prefix with numbers from 0.
    void encodeNumberedObjects(const QVariantList &objects, const QString &prefix);

    /// Writes an array of references. Throws `InvalidArgumentException` when one is to nothing.
    void encodeObjects(const QVariantList &objects, const QString &key);

    /// Writes a reference to an object of the given class whose fields are an array of references, `NS.objects`.
    void encodeArray(const QVariantList &objects, const QStringList &classNames, const QString &key);

private:
    void insert(const QString &key, const QVariant &value);
    QString nextUnnamedField();

    KeyedEncoder &m_encoder;
    QVariantMap m_fields;
    int m_unnamedFields = 0;
};

} // namespace platform
