#include <OrvaneExportKit/platform/KeyedFieldWriter.h>

#include <OrvaneExportKit/platform/KeyedArchive.h>
#include <OrvaneExportKit/platform/KeyedEncoder.h>
#include <OrvaneExportKit/platform/TypeCodes.h>

namespace platform {

using namespace Qt::Literals::StringLiterals;

void KeyedFieldWriter::encodeObject(const QVariant &object, const QString &key)
{
    insert(key, QVariant::fromValue(m_encoder.encode(object)));
}

void KeyedFieldWriter::encodeFloat(float value, const QString &key)
{
    insert(key, value);
}

void KeyedFieldWriter::encodeDouble(double value, const QString &key)
{
    insert(key, value);
}

void KeyedFieldWriter::encodeInt64(qint64 value, const QString &key)
{
    insert(key, value);
}

void KeyedFieldWriter::encodeBool(bool value, const QString &key)
{
    insert(key, value);
}

void KeyedFieldWriter::encodeBytes(const QByteArray &bytes, const QString &key)
{
    insert(key, bytes);
}

void KeyedFieldWriter::encodeObject(const QVariant &object)
{
    const QString key = nextUnnamedField();
    m_fields.insert(key, QVariant::fromValue(m_encoder.encode(object)));
}

void KeyedFieldWriter::encodeValueOfObjCType(const char *type, const void *address)
{
    withTypeOfCode("encodeValueOfObjCType", type, [&]<typename Value>(std::type_identity<Value>) {
        m_fields.insert(nextUnnamedField(), QVariant::fromValue(*static_cast<const Value *>(address)));
    });
}

void KeyedFieldWriter::encodeString(const QString &string, const QString &key)
{
    insert(key, string);
}

void KeyedFieldWriter::encodeCount(quint64 count, const QString &key)
{
    insert(key, count);
}

quint32 KeyedFieldWriter::reference(const QVariant &object)
{
    return m_encoder.encode(object).value;
}

void KeyedFieldWriter::encodeNumberedObjects(const QVariantList &objects, const QString &prefix)
{
    const QVariantList references = m_encoder.encodeReferences(objects);
    for (qsizetype i = 0; i < references.size(); ++i) {
        insert(prefix + QString::number(i), references[i]);
    }
}

void KeyedFieldWriter::encodeObjects(const QVariantList &objects, const QString &key)
{
    insert(key, m_encoder.encodeReferences(objects));
}

void KeyedFieldWriter::encodeArray(const QVariantList &objects, const QStringList &classNames, const QString &key)
{
    insert(key, QVariant::fromValue(m_encoder.encodeInstance(classNames, [&objects](KeyedFieldWriter &writer) {
               writer.encodeObjects(objects, u"NS.objects"_s);
           })));
}

void KeyedFieldWriter::insert(const QString &key, const QVariant &value)
{
    m_fields.insert(KeyedArchive::archivedKey(key), value);
}

QString KeyedFieldWriter::nextUnnamedField()
{
    return u'$' + QString::number(m_unnamedFields++);
}

} // namespace platform
