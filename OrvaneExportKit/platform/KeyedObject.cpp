#include <OrvaneExportKit/platform/KeyedObject.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchive.h>
#include <OrvaneExportKit/platform/KeyedDecoder.h>
#include <OrvaneExportKit/platform/KeyedFieldReader.h>

#include <utility>

namespace platform {

KeyedObject::KeyedObject() = default;

KeyedObject::KeyedObject(const KeyedObject &) = default;

KeyedObject &KeyedObject::operator=(const KeyedObject &) = default;

KeyedObject::~KeyedObject() = default;

KeyedObject::KeyedObject(std::shared_ptr<const KeyedArchive> archive, quint32 index)
    : m_archive(std::move(archive)), m_index(index)
{
}

QString KeyedObject::className() const
{
    return isNull() ? QString() : m_archive->classAt(m_archive->classIndex(m_index)).name;
}

QStringList KeyedObject::classNames() const
{
    if (isNull()) {
        return {};
    }
    const KeyedArchive::Class objectClass = m_archive->classAt(m_archive->classIndex(m_index));
    return objectClass.names.isEmpty() ? QStringList{objectClass.name} : objectClass.names;
}

QStringList KeyedObject::keys() const
{
    if (isNull()) {
        return {};
    }
    QStringList keys = m_archive->fields(m_index).keys();
    keys.removeOne(KeyedArchive::classKey);
    return keys;
}

bool KeyedObject::containsValueForKey(const QString &key) const
{
    return !isNull() && key != KeyedArchive::classKey && m_archive->fields(m_index).contains(key);
}

QVariant KeyedObject::value(const QString &key) const
{
    if (!containsValueForKey(key)) {
        return {};
    }
    KeyedDecoder decoder(m_archive);
    return KeyedFieldReader(decoder, m_archive->fields(m_index), m_index, className()).decodeField(key);
}

void KeyedObject::decodeFields(const std::function<void(Coder &coder)> &decode) const
{
    if (isNull()) {
        throw InvalidArgumentException("decodeFields: there is no object");
    }
    KeyedDecoder decoder(m_archive);
    KeyedFieldReader reader(decoder, m_archive->fields(m_index), m_index, className());
    decode(reader);
}

} // namespace platform
