#include <OrvaneExportKit/platform/KeyedUnarchiver.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchive.h>
#include <OrvaneExportKit/platform/KeyedDecoder.h>
#include <OrvaneExportKit/platform/KeyedFieldReader.h>

namespace platform {

using namespace Qt::Literals::StringLiterals;

QVariant KeyedUnarchiver::unarchiveObjectWithData(QByteArrayView data)
{
    try {
        const QString root = u"root"_s;
        KeyedUnarchiver unarchiver(data);
        if (!unarchiver.containsValueForKey(root)) {
            failInArchive("the outermost fields", u"`root` is missing"_s);
        }
        return unarchiver.decodeObjectForKey(root);
    } catch (const ArchiveException &exception) {
        throw ArchiveException(std::string("unarchiveObjectWithData: ") + exception.what());
    }
}

KeyedUnarchiver::KeyedUnarchiver(QByteArrayView data)
    : m_archive(std::make_shared<const KeyedArchive>(data)),
      m_decoder(std::make_unique<KeyedDecoder>(m_archive)),
      m_top(std::make_unique<KeyedFieldReader>(*m_decoder, m_archive->outermostFields()))
{
}

KeyedUnarchiver::~KeyedUnarchiver() = default;

bool KeyedUnarchiver::allowsKeyedCoding() const
{
    return true;
}

bool KeyedUnarchiver::containsValueForKey(const QString &key) const
{
    return m_top->containsValueForKey(key);
}

QVariant KeyedUnarchiver::decodeObjectForKey(const QString &key)
{
    QVariant object = m_top->decodeObjectForKey(key);
    m_decoder->decodeUnknownObjects();
    return object;
}

float KeyedUnarchiver::decodeFloatForKey(const QString &key)
{
    return m_top->decodeFloatForKey(key);
}

double KeyedUnarchiver::decodeDoubleForKey(const QString &key)
{
    return m_top->decodeDoubleForKey(key);
}

qint64 KeyedUnarchiver::decodeInt64ForKey(const QString &key)
{
    return m_top->decodeInt64ForKey(key);
}

bool KeyedUnarchiver::decodeBoolForKey(const QString &key)
{
    return m_top->decodeBoolForKey(key);
}

QByteArray KeyedUnarchiver::decodeBytesForKey(const QString &key)
{
    return m_top->decodeBytesForKey(key);
}

QVariant KeyedUnarchiver::decodeObject()
{
    QVariant object = m_top->decodeObject();
    m_decoder->decodeUnknownObjects();
    return object;
}

void KeyedUnarchiver::decodeValueOfObjCType(const char *type, void *address)
{
    m_top->decodeValueOfObjCType(type, address);
}

} // namespace platform
