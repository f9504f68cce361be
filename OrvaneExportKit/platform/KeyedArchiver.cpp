#include <OrvaneExportKit/platform/KeyedArchiver.h>

#include <OrvaneExportKit/platform/KeyedEncoder.h>
#include <OrvaneExportKit/platform/KeyedFieldWriter.h>

namespace platform {

QByteArray KeyedArchiver::archivedDataWithRootObject(const QVariant &object, PropertyList::Format format)
{
    KeyedArchiver archiver(format);
    archiver.encodeObject(object, QStringLiteral("root"));
    return archiver.encodedData();
}

KeyedArchiver::KeyedArchiver(PropertyList::Format format)
    : m_encoder(std::make_unique<KeyedEncoder>()),
      m_top(std::make_unique<KeyedFieldWriter>(*m_encoder)),
      m_format(format)
{
}

KeyedArchiver::~KeyedArchiver() = default;

QByteArray KeyedArchiver::encodedData() const
{
    return m_encoder->data(m_top->fields(), m_format);
}

bool KeyedArchiver::allowsKeyedCoding() const
{
    return true;
}

void KeyedArchiver::encodeObject(const QVariant &object, const QString &key)
{
    m_top->encodeObject(object, key);
}

void KeyedArchiver::encodeFloat(float value, const QString &key)
{
    m_top->encodeFloat(value, key);
}

void KeyedArchiver::encodeDouble(double value, const QString &key)
{
    m_top->encodeDouble(value, key);
}

void KeyedArchiver::encodeInt64(qint64 value, const QString &key)
{
    m_top->encodeInt64(value, key);
}

void KeyedArchiver::encodeBool(bool value, const QString &key)
{
    m_top->encodeBool(value, key);
}

void KeyedArchiver::encodeBytes(const QByteArray &bytes, const QString &key)
{
    m_top->encodeBytes(bytes, key);
}

void KeyedArchiver::encodeObject(const QVariant &object)
{
    m_top->encodeObject(object);
}

void KeyedArchiver::encodeValueOfObjCType(const char *type, const void *address)
{
    m_top->encodeValueOfObjCType(type, address);
}

} // namespace platform
