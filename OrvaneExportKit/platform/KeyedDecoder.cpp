#include <OrvaneExportKit/platform/KeyedDecoder.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedEncoder.h>
#include <OrvaneExportKit/platform/KeyedFieldReader.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QScopeGuard>

#include <algorithm>
#include <limits>
#include <utility>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr quint64 bytesPerArchivedByte = 64;      // two values in an array take a byte each, at the least
constexpr quint64 unitsPerValue = 32;             // of a string that are compared as fast as another value
constexpr int mostUnnumbered = 64;                // values; finding one out may take as long as all objects do
constexpr quint64 maximumComparison = 1ULL << 26; // values, about a second

/// The content of a value of that type; null for any other.
template <typename Value>
const Value *contentAs(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<Value>() ? static_cast<const Value *>(value.constData()) : nullptr;
}

bool isNothing(const QVariant &value)
{
    const auto *string = contentAs<QString>(value);
    return string != nullptr && *string == KeyedArchive::nothing;
}

/// How long it takes to compare a plain value with an equal one.
quint64 valuesIn(const QVariant &plain)
{
    const auto *string = contentAs<QString>(plain);
    const auto *bytes = contentAs<QByteArray>(plain);
    const qsizetype units = string != nullptr ? string->size() : bytes != nullptr ? bytes->size() : 0;
    return 1 + static_cast<quint64>(units) / unitsPerValue;
}

QString tooDeep()
{
    return u"more than %1 objects are inside each other"_s.arg(KeyedUnarchiver::maximumNesting);
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

KeyedDecoder::~KeyedDecoder() = default;

QVariant KeyedDecoder::decode(quint32 index)
{
    const QVariant &object = m_archive->object(index);
    if (index == 0 || isNothing(object)) {
        return {};
    }
    if (isPlain(object)) {
        enclose({0, valuesIn(object)});
        return object;
    }
    const auto found = m_instances.find(index);
    if (found != m_instances.end() && found->second.inProgress) {
        failInArchive("object " + std::to_string(index), u"is inside itself"_s);
    }
    const Instance &instance = found != m_instances.end() ? found->second : decodeInstance(index);
    enclose(instance.extent);
    return instance.value;
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

void KeyedDecoder::spend(quint64 bytes)
{
    m_spent += bytes;
    if (m_spent / bytesPerArchivedByte > m_archive->size()) {
        failInArchive("the archive", u"its objects hold too much for its %1 bytes"_s.arg(m_archive->size()));
    }
}

quint64 KeyedDecoder::valuesInside(const QVariantMap &map) const
{
    const auto found = map.isEmpty() ? m_valuesInside.end() : m_valuesInside.find(&map.firstKey());
    return found == m_valuesInside.end() ? 1 : found->second;
}

void KeyedDecoder::spendComparison(quint64 values)
{
    m_compared += values;
    if (m_compared > maximumComparison) {
        failInArchive("the archive", u"its attributes hold too much to be compared"_s);
    }
}

std::optional<quint64> KeyedDecoder::numberOf(const QVariant &value)
{
    constexpr quint64 firstOfUnknownObjects = 1ULL << 32;
    if (const auto *object = contentAs<KeyedObject>(value)) {
        return firstOfUnknownObjects + object->m_index;
    }
    if (m_unnumbered == mostUnnumbered) {
        return std::nullopt;
    }
    if (!m_numbers) {
        m_numbers = std::make_unique<KeyedEncoder>();
    }
    try {
        return m_numbers->encode(value).value;
    } catch (const Exception &) {
        ++m_unnumbered; // it cannot be archived again
        return std::nullopt;
    }
}

const KeyedDecoder::Instance &KeyedDecoder::decodeInstance(quint32 index)
{
    const Class &objectClass = classAt(m_archive->classIndex(index));
    if (!objectClass.decode) {
        return unknownObject(index);
    }
    KeyedFieldReader reader(*this, m_archive->fields(index), index, objectClass.name);
    if (m_nesting == KeyedUnarchiver::maximumNesting) {
        reader.fail(tooDeep());
    }
    ++m_nesting;
    auto forget = qScopeGuard([this, index] { m_instances.erase(index); });
    const auto leave = qScopeGuard([this, enclosing = std::exchange(m_extent, {})] {
        m_extent = enclosing;
        --m_nesting;
    });
    Instance &instance = m_instances[index];
    instance.value = objectClass.decode(reader);
    if (m_extent.nesting > KeyedUnarchiver::maximumNesting) {
        reader.fail(tooDeep());
    }
    instance.extent = m_extent;
    instance.inProgress = false;
    forget.dismiss();
    if (!instance.value.isValid()) {
        return unknownObject(index);
    }
    if (const auto *map = contentAs<QVariantMap>(instance.value); map != nullptr && !map->isEmpty()) {
        m_valuesInside.insert_or_assign(&map->firstKey(), m_extent.values);
    }
    return instance;
}

/// Counts an object as one inside the object in progress. An object is decoded only once, perhaps where it stands less
/// deep than elsewhere, so the nesting is counted from the inside, too.
void KeyedDecoder::enclose(const Extent &inner)
{
    constexpr quint64 most = std::numeric_limits<quint64>::max();
    m_extent.nesting = std::max(m_extent.nesting, inner.nesting + 1);
    m_extent.values = inner.values < most - m_extent.values ? m_extent.values + inner.values : most;
}

const KeyedDecoder::Instance &KeyedDecoder::unknownObject(quint32 index)
{
    m_unknownObjects.push_back(index);
    Instance &instance = m_instances[index];
    instance = {false, QVariant::fromValue(KeyedObject(m_archive, index)), {0, 1}};
    return instance;
}

const KeyedDecoder::Class &KeyedDecoder::classAt(quint32 classIndex)
{
    auto found = m_classes.find(classIndex);
    if (found == m_classes.end()) {
        const KeyedArchive::Class archived = m_archive->classAt(classIndex);
        spend(static_cast<quint64>(archived.names.size()) * sizeof(QString));
        found = m_classes.emplace(classIndex, Class{archived.name, keyedDecode(archived.name)}).first;
    }
    return found->second;
}

} // namespace platform
