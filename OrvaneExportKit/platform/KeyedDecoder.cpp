#include <OrvaneExportKit/platform/KeyedDecoder.h>

#include <OrvaneExportKit/platform/KeyedFieldReader.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QScopeGuard>

#include <utility>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

bool isNothing(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QString>() &&
           *static_cast<const QString *>(value.constData()) == KeyedArchive::nothing;
}

/// Whether a value stands in the table as itself.
bool isPlain(const QVariant &value)
{
    switch (propertyListKind(value)) {
    case PropertyListKind::String:
    case PropertyListKind::SignedInteger:
    case PropertyListKind::UnsignedInteger:
    case PropertyListKind::Real:
    case PropertyListKind::ShortReal:
    case PropertyListKind::Boolean:
    case PropertyListKind::Date:
    case PropertyListKind::Data:
        return true;
    case PropertyListKind::None:
    case PropertyListKind::Uid:
    case PropertyListKind::Array:
    case PropertyListKind::Dictionary:
        break;
    }
    return false;
}

} // namespace

KeyedDecoder::KeyedDecoder(std::shared_ptr<const KeyedArchive> archive) : m_archive(std::move(archive))
{
}

QVariant KeyedDecoder::decode(quint32 index)
{
    const QVariant &object = m_archive->object(index);
    if (index == 0 || isNothing(object)) {
        return {};
    }
    if (isPlain(object)) {
        return object;
    }
    const auto instance = m_instances.find(index);
    if (instance == m_instances.end()) {
        return decodeInstance(index);
    }
    if (instance->second.inProgress) {
        failInArchive("object " + std::to_string(index), u"is inside itself"_s);
    }
    return instance->second.value;
}

void KeyedDecoder::decodeUnknownObjects()
{
    while (!m_unknownObjects.empty()) {
        const quint32 index = m_unknownObjects.back();
        m_unknownObjects.pop_back();
        const QVariantMap &fields = m_archive->fields(index);
        KeyedFieldReader reader(*this, fields, index, classAt(m_archive->classIndex(index)).name);
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            if (field.key() != KeyedArchive::classKey) {
                reader.decodeField(field.key());
            }
        }
    }
}

QVariant KeyedDecoder::decodeInstance(quint32 index)
{
    const Class &objectClass = classAt(m_archive->classIndex(index));
    if (!objectClass.decode) {
        return unknownObject(index);
    }
    KeyedFieldReader reader(*this, m_archive->fields(index), index, objectClass.name);
    if (m_nesting == KeyedUnarchiver::maximumNesting) {
        reader.fail(u"more than %1 objects are inside each other"_s.arg(m_nesting));
    }
    ++m_nesting;
    auto forget = qScopeGuard([this, index] { m_instances.erase(index); });
    const auto leave = qScopeGuard([this] { --m_nesting; });
    Instance &instance = m_instances[index];
    instance.value = objectClass.decode(reader);
    instance.inProgress = false;
    forget.dismiss();
    return instance.value.isValid() ? instance.value : unknownObject(index);
}

QVariant KeyedDecoder::unknownObject(quint32 index)
{
    m_unknownObjects.push_back(index);
    Instance &instance = m_instances[index];
    instance = {false, QVariant::fromValue(KeyedObject(m_archive, index))};
    return instance.value;
}

const KeyedDecoder::Class &KeyedDecoder::classAt(quint32 classIndex)
{
    auto found = m_classes.find(classIndex);
    if (found == m_classes.end()) {
        const QString name = m_archive->classAt(classIndex).name;
        found = m_classes.emplace(classIndex, Class{name, keyedDecode(name)}).first;
    }
    return found->second;
}

} // namespace platform
