#include <OrvaneExportKit/platform/KeyedFieldReader.h>

#include <OrvaneExportKit/platform/KeyedArchive.h>
#include <OrvaneExportKit/platform/KeyedDecoder.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/TypeCodes.h>

#include <cmath>
#include <limits>
#include <utility>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

template <typename Value>
bool holds(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<Value>();
}

quint64 spaceOf(qsizetype values)
{
    return static_cast<quint64>(values) * sizeof(QVariant);
}

bool isNumber(const QVariant &value)
{
    return holds<bool>(value) || holds<qint64>(value) || holds<quint64>(value) || holds<double>(value);
}

template <typename Target>
Target fromReal(double number)
{
    using Limits = std::numeric_limits<Target>;
    if (std::isnan(number)) {
        return 0;
    }
    if (number >= std::ldexp(1.0, Limits::digits)) {
        return Limits::max();
    }
    return number <= static_cast<double>(Limits::min()) ? Limits::min() : static_cast<Target>(number);
}

template <typename Target, typename Number>
Target fromInteger(Number number)
{
    if (std::in_range<Target>(number)) {
        return static_cast<Target>(number);
    }
    return std::cmp_less(number, 0) ? std::numeric_limits<Target>::min() : std::numeric_limits<Target>::max();
}

/// The number as the type asked for, held to its ends.
template <typename Target>
Target converted(const QVariant &number)
{
    if constexpr (std::is_same_v<Target, bool>) {
        return holds<double>(number) ? number.toDouble() != 0 : number.toBool();
    } else if constexpr (std::is_floating_point_v<Target>) {
        return static_cast<Target>(number.toDouble());
    } else {
        return holds<double>(number)    ? fromReal<Target>(number.toDouble())
               : holds<quint64>(number) ? fromInteger<Target>(number.toULongLong())
                                        : fromInteger<Target>(number.toLongLong());
    }
}

} // namespace

KeyedFieldReader::KeyedFieldReader(KeyedDecoder &decoder, const QVariantMap &outermostFields)
    : m_decoder(decoder), m_fields(outermostFields)
{
}

KeyedFieldReader::KeyedFieldReader(KeyedDecoder &decoder, const QVariantMap &fields, quint32 index,
                                   const QString &className)
    : m_decoder(decoder), m_fields(fields), m_index(index), m_className(className)
{
}

bool KeyedFieldReader::containsValueForKey(const QString &key) const
{
    return field(key) != nullptr;
}

QVariant KeyedFieldReader::decodeObjectForKey(const QString &key)
{
    const QVariant *reference = field(key);
    return reference == nullptr ? QVariant() : decodeReference(*reference, key);
}

float KeyedFieldReader::decodeFloatForKey(const QString &key)
{
    return converted<float>(numberForKey(key));
}

double KeyedFieldReader::decodeDoubleForKey(const QString &key)
{
    return converted<double>(numberForKey(key));
}

qint64 KeyedFieldReader::decodeInt64ForKey(const QString &key)
{
    return converted<qint64>(numberForKey(key));
}

bool KeyedFieldReader::decodeBoolForKey(const QString &key)
{
    return converted<bool>(numberForKey(key));
}

QByteArray KeyedFieldReader::decodeBytesForKey(const QString &key)
{
    const QVariant *bytes = field(key);
    if (bytes != nullptr && !holds<QByteArray>(*bytes)) {
        fail(u"`%1` is no data"_s.arg(key));
    }
    return bytes == nullptr ? QByteArray() : bytes->toByteArray();
}

QVariant KeyedFieldReader::decodeObject()
{
    const QString key = u'$' + QString::number(m_unnamedFieldsRead);
    const auto reference = m_fields.find(key);
    if (reference == m_fields.end()) {
        fail(u"`%1` is missing"_s.arg(key));
    }
    QVariant object = decodeReference(*reference, key);
    ++m_unnamedFieldsRead;
    return object;
}

void KeyedFieldReader::decodeValueOfObjCType(const char *type, void *address)
{
    withTypeOfCode("decodeValueOfObjCType", type, [&]<typename Value>(std::type_identity<Value>) {
        const QString key = u'$' + QString::number(m_unnamedFieldsRead);
        const auto number = m_fields.find(key);
        if (number == m_fields.end() || !isNumber(*number)) {
            fail(number == m_fields.end() ? u"`%1` is missing"_s.arg(key) : u"`%1` is no number"_s.arg(key));
        }
        *static_cast<Value *>(address) = converted<Value>(*number);
        ++m_unnamedFieldsRead;
    });
}

QVariant KeyedFieldReader::decodeField(const QString &archivedKey)
{
    m_decoder.spend(sizeof(QVariant));
    const auto value = m_fields.find(archivedKey);
    return value == m_fields.end() ? QVariant() : decodeInline(*value, archivedKey);
}

QString KeyedFieldReader::stringForKey(const QString &key) const
{
    const QVariant *string = field(key);
    if (string == nullptr || !holds<QString>(*string)) {
        fail(string == nullptr ? u"`%1` is missing"_s.arg(key) : u"`%1` is no string"_s.arg(key));
    }
    return string->toString();
}

QString KeyedFieldReader::stringObjectForKey(const QString &key)
{
    const QVariant string = decodeObjectForKey(key);
    if (!holds<QString>(string)) {
        fail(u"`%1` is not a string"_s.arg(key));
    }
    return string.toString();
}

QByteArray KeyedFieldReader::dataForKey(const QString &key)
{
    const QVariant *field = this->field(key);
    if (field == nullptr || !holds<PropertyList::Uid>(*field)) {
        return decodeBytesForKey(key);
    }
    const QVariant data = decodeObjectForKey(key);
    if (!holds<QByteArray>(data)) {
        fail(u"`%1` is not data"_s.arg(key));
    }
    return data.toByteArray();
}

QVariant KeyedFieldReader::numberForKey(const QString &key) const
{
    const QVariant *number = field(key);
    if (number != nullptr && !isNumber(*number)) {
        fail(u"`%1` is no number"_s.arg(key));
    }
    return number == nullptr ? QVariant(qint64(0)) : *number;
}

quint64 KeyedFieldReader::countForKey(const QString &key) const
{
    const QVariant count = numberForKey(key);
    if (!holds<quint64>(count) && (!holds<qint64>(count) || count.toLongLong() < 0)) {
        fail(u"`%1` is no integer of 0 or more"_s.arg(key));
    }
    return count.toULongLong();
}

QVariantList KeyedFieldReader::objectsForKey(const QString &key)
{
    const QVariant *references = field(key);
    if (references == nullptr || !holds<QVariantList>(*references)) {
        fail(references == nullptr ? u"`%1` is missing"_s.arg(key) : u"`%1` is no array"_s.arg(key));
    }
    const auto &list = *static_cast<const QVariantList *>(references->constData());
    QVariantList objects;
    m_decoder.spend(spaceOf(list.size()));
    objects.reserve(list.size());
    for (const QVariant &reference : list) {
        objects.append(requireObject(reference, key));
    }
    return objects;
}

QVariantList KeyedFieldReader::numberedObjects(const QString &prefix)
{
    QVariantList objects;
    QString key = prefix + u'0';
    for (const QVariant *reference = field(key); reference != nullptr; reference = field(key)) {
        m_decoder.spend(sizeof(QVariant));
        objects.append(requireObject(*reference, key));
        key = prefix + QString::number(objects.size());
    }
    return objects;
}

void KeyedFieldReader::fail(const QString &complaint) const
{
    const QString place = m_index ? u"object %1 (%2)"_s.arg(*m_index).arg(m_className) : u"the outermost fields"_s;
    failInArchive(place.toStdString(), complaint);
}

const QVariant *KeyedFieldReader::field(const QString &key) const
{
    const auto entry = m_fields.find(KeyedArchive::archivedKey(key));
    return entry == m_fields.end() ? nullptr : &*entry;
}

QVariant KeyedFieldReader::decodeInline(const QVariant &value, const QString &key)
{
    if (holds<PropertyList::Uid>(value)) {
        return decodeReference(value, key);
    }
    if (holds<QVariantList>(value)) {
        QVariantList list = value.toList();
        m_decoder.spend(spaceOf(list.size()));
        for (QVariant &element : list) {
            element = decodeInline(element, key);
        }
        return list;
    }
    if (holds<QVariantMap>(value)) {
        QVariantMap map = value.toMap();
        m_decoder.spend(spaceOf(map.size()));
        for (QVariant &entry : map) {
            entry = decodeInline(entry, key);
        }
        return map;
    }
    return value;
}

QVariant KeyedFieldReader::decodeReference(const QVariant &reference, const QString &key)
{
    if (!holds<PropertyList::Uid>(reference)) {
        fail(u"`%1` holds something that is no reference"_s.arg(key));
    }
    const quint32 index = reference.value<PropertyList::Uid>().value;
    if (index >= m_decoder.archive().objectCount()) {
        fail(u"`%1` refers to object %2; the archive has %3"_s.arg(key).arg(index).arg(
            m_decoder.archive().objectCount()));
    }
    return m_decoder.decode(index);
}

QVariant KeyedFieldReader::requireObject(const QVariant &reference, const QString &key)
{
    QVariant object = decodeReference(reference, key);
    if (!object.isValid()) {
        fail(u"`%1` refers to nothing"_s.arg(key));
    }
    return object;
}

} // namespace platform
