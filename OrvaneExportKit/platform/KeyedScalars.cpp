#include <OrvaneExportKit/platform/KeyedScalars.h>

#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/GeometryStrings.h>
#include <OrvaneExportKit/platform/KeyedDecoder.h>
#include <OrvaneExportKit/platform/KeyedFieldReader.h>
#include <OrvaneExportKit/platform/KeyedFieldWriter.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/Range.h>
#include <OrvaneExportKit/platform/Utf8.h>

#include <QtCore/QDateTime>
#include <QtCore/QMarginsF>
#include <QtCore/QTimeZone>
#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr qint64 millisecondsTo2001 = 978307200000;
constexpr double furthestSecond = 9.22e15; // 292 million years, which milliseconds in 64 bits can count
constexpr qsizetype uuidSize = 16;

/// What `NS.special` of a boxed value says of its kind.
enum Special : qint64 {
    Point = 1,
    Size = 2,
    Rectangle = 3,
    RangeOfUnits = 4,
    EdgeInsets = 12,
};

template <typename Geometry, typename Parse>
QVariant decodeGeometryString(KeyedFieldReader &reader, const QString &key, Parse parse)
{
    const QString string = reader.stringObjectForKey(key);
    reader.decoder().spend(static_cast<quint64>(string.size()));
    const std::optional<Geometry> geometry = parse(string);
    if (!geometry) {
        reader.fail(u"`%1` does not hold the numbers that it should, as in `{1, 2}`"_s.arg(key));
    }
    return *geometry;
}

/// The most significant word last.
using Mantissa = std::array<quint16, 8>;

/// Words of the mantissa, as many as `NS.length` says, in the byte order of the machine that wrote them.
Mantissa decodeMantissa(KeyedFieldReader &reader)
{
    constexpr qint64 bigEndian = 2;
    Mantissa mantissa{};
    const quint64 length = reader.countForKey(u"NS.length"_s);
    const QByteArray bytes = reader.dataForKey(u"NS.mantissa"_s);
    if (length > mantissa.size() || static_cast<quint64>(bytes.size()) < length * sizeof(quint16)) {
        reader.fail(u"`NS.mantissa` has %1 bytes; `NS.length` says %2 words"_s.arg(bytes.size()).arg(length));
    }
    const bool isBigEndian = reader.decodeInt64ForKey(u"NS.mantissa.bo"_s) == bigEndian;
    for (std::size_t i = 0; i < length; ++i) {
        const char *word = bytes.constData() + i * sizeof(quint16);
        mantissa[i] = isBigEndian ? qFromBigEndian<quint16>(word) : qFromLittleEndian<quint16>(word);
    }
    return mantissa;
}

QByteArray decimalDigits(Mantissa number)
{
    QByteArray digits;
    while (std::ranges::any_of(number, [](quint16 word) { return word != 0; })) {
        quint32 remainder = 0;
        for (auto word = number.rbegin(); word != number.rend(); ++word) {
            const quint32 dividend = (remainder << 16) | *word;
            *word = static_cast<quint16>(dividend / 10);
            remainder = dividend % 10;
        }
        digits.prepend(static_cast<char>('0' + remainder));
    }
    return digits.isEmpty() ? "0" : digits;
}

/// The integer, where 64 bits hold it, else the nearest real.
QVariant decimalNumber(QByteArray digits, qint64 exponent, bool isNegative)
{
    constexpr qint64 mostDigits = std::numeric_limits<quint64>::digits10 + 1;
    while (exponent < 0 && digits.endsWith('0')) {
        digits.chop(1);
        ++exponent;
    }
    const QByteArray sign = isNegative ? "-" : "";
    if (exponent == 0 || (exponent > 0 && exponent + digits.size() <= mostDigits)) {
        const QByteArray integer = sign + digits + QByteArray(static_cast<qsizetype>(exponent), '0');
        bool fits = false;
        if (const qint64 number = integer.toLongLong(&fits); fits) {
            return number;
        }
        if (const quint64 number = integer.toULongLong(&fits); fits) {
            return number;
        }
    }
    return (sign + digits + 'e' + QByteArray::number(exponent)).toDouble();
}

bool isUrl(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QUrl>() || value.metaType() == QMetaType::fromType<ArchivedUrl>();
}

bool isUrlThatQtRefuses(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<KeyedObject>() && value.value<KeyedObject>().className() == u"NSURL";
}

std::size_t rangeMember(KeyedFieldReader &reader, const QString &key)
{
    const QVariant number = reader.decodeObjectForKey(key);
    if (number.metaType() == QMetaType::fromType<quint64>()) {
        return number.toULongLong();
    }
    if (number.metaType() != QMetaType::fromType<qint64>() || number.toLongLong() < 0) {
        reader.fail(u"`%1` is no integer of 0 or more"_s.arg(key));
    }
    return number.toULongLong();
}

} // namespace

QVariant decodeString(KeyedFieldReader &reader)
{
    if (!reader.containsValueForKey(u"NS.bytes"_s)) {
        return reader.stringForKey(u"NS.string"_s);
    }
    const QByteArray bytes = reader.decodeBytesForKey(u"NS.bytes"_s);
    reader.decoder().spend(static_cast<quint64>(bytes.size()) * sizeof(QChar));
    const std::optional<QString> string = stringFromUtf8(bytes);
    if (!string) {
        reader.fail(u"`NS.bytes` is not UTF-8"_s);
    }
    return *string;
}

QVariant decodeNumber(KeyedFieldReader &reader)
{
    if (reader.containsValueForKey(u"NS.boolval"_s)) {
        return reader.decodeBoolForKey(u"NS.boolval"_s);
    }
    if (reader.containsValueForKey(u"NS.dblval"_s)) {
        return reader.decodeDoubleForKey(u"NS.dblval"_s);
    }
    const QString key = reader.containsValueForKey(u"NS.intval"_s) ? u"NS.intval"_s : u"NS.number"_s;
    if (!reader.containsValueForKey(key)) {
        reader.fail(u"`NS.number` is missing"_s);
    }
    return reader.numberForKey(key);
}

QVariant decodeDecimalNumber(KeyedFieldReader &reader)
{
    constexpr qint64 furthestExponent = 128;
    const qint64 exponent = reader.decodeInt64ForKey(u"NS.exponent"_s);
    if (std::abs(exponent) > furthestExponent) {
        reader.fail(u"`NS.exponent` is %1, which is none"_s.arg(exponent));
    }
    const bool isNegative = reader.decodeBoolForKey(u"NS.negative"_s);
    if (reader.countForKey(u"NS.length"_s) == 0) {
        return isNegative ? QVariant(std::numeric_limits<double>::quiet_NaN()) : QVariant(qint64(0));
    }
    return decimalNumber(decimalDigits(decodeMantissa(reader)), exponent, isNegative);
}

QVariant decodeNull(KeyedFieldReader & /*reader*/)
{
    return QVariant::fromValue(nullptr);
}

QVariant decodeData(KeyedFieldReader &reader)
{
    return reader.dataForKey(reader.containsValueForKey(u"NS.data"_s) ? u"NS.data"_s : u"NS.bytes"_s);
}

QVariant decodeDate(KeyedFieldReader &reader)
{
    const double seconds = reader.decodeDoubleForKey(u"NS.time"_s);
    if (!(std::abs(seconds) <= furthestSecond)) {
        return {};
    }
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000) + millisecondsTo2001, QTimeZone::utc());
}

QVariant decodeUrl(KeyedFieldReader &reader)
{
    const QString relative = reader.stringObjectForKey(u"NS.relative"_s);
    reader.decoder().spend(static_cast<quint64>(relative.size()) * sizeof(QChar));
    const QVariant base = reader.decodeObjectForKey(u"NS.base"_s);
    const QUrl url(relative);
    if (isUrlThatQtRefuses(base) || (!url.isValid() && !relative.isEmpty())) {
        return {};
    }
    if (base.isValid() && !isUrl(base)) {
        reader.fail(u"`NS.base` is no URL"_s);
    }
    if (!base.isValid() && url.toString(QUrl::FullyEncoded) == relative) {
        return url;
    }
    return QVariant::fromValue(ArchivedUrl{relative, base});
}

QVariant decodeUuid(KeyedFieldReader &reader)
{
    const QString key = reader.containsValueForKey(u"NS.uuidbytes"_s) ? u"NS.uuidbytes"_s : u"uuid"_s;
    const QByteArray bytes = reader.decodeBytesForKey(key);
    if (bytes.size() != uuidSize) {
        reader.fail(u"`%1` has %2 bytes, not %3"_s.arg(key).arg(bytes.size()).arg(uuidSize));
    }
    return QUuid::fromRfc4122(bytes);
}

QVariant decodeGeometry(KeyedFieldReader &reader)
{
    switch (reader.decodeInt64ForKey(u"NS.special"_s)) {
    case Point:
        return decodeGeometryString<QPointF>(reader, u"NS.pointval"_s, pointFromString);
    case Size:
        return decodeGeometryString<QSizeF>(reader, u"NS.sizeval"_s, sizeFromString);
    case Rectangle:
        return decodeGeometryString<QRectF>(reader, u"NS.rectval"_s, rectangleFromString);
    case RangeOfUnits:
        return QVariant::fromValue(
            Range{rangeMember(reader, u"NS.rangeval.location"_s), rangeMember(reader, u"NS.rangeval.length"_s)});
    case EdgeInsets:
        return QVariant::fromValue(QMarginsF(
            reader.decodeDoubleForKey(u"NS.edgeval.left"_s), reader.decodeDoubleForKey(u"NS.edgeval.top"_s),
            reader.decodeDoubleForKey(u"NS.edgeval.right"_s), reader.decodeDoubleForKey(u"NS.edgeval.bottom"_s)));
    default:
        return {};
    }
}

void encodeNull(const QVariant & /*value*/, KeyedFieldWriter & /*writer*/)
{
}

void encodeDate(const QVariant &value, KeyedFieldWriter &writer)
{
    const bool isDay = value.metaType() == QMetaType::fromType<QDate>();
    const QDateTime date = isDay ? value.toDate().startOfDay(Qt::UTC) : value.toDateTime();
    if (!date.isValid()) {
        throw InvalidArgumentException("encodeObject: a date is not valid");
    }
    writer.encodeDouble(static_cast<double>(date.toMSecsSinceEpoch() - millisecondsTo2001) / 1000, u"NS.time"_s);
}

void encodeUrl(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeObject(QVariant(), u"NS.base"_s);
    writer.encodeObject(value.toUrl().toString(QUrl::FullyEncoded), u"NS.relative"_s);
}

void encodeArchivedUrl(const QVariant &value, KeyedFieldWriter &writer)
{
    const auto url = value.value<ArchivedUrl>();
    writer.encodeObject(url.base, u"NS.base"_s);
    writer.encodeObject(url.string, u"NS.relative"_s);
}

void encodeUuid(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeBytes(value.toUuid().toRfc4122(), u"NS.uuidbytes"_s);
}

void encodePoint(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeInt64(Point, u"NS.special"_s);
    writer.encodeObject(stringFromPoint(value.toPointF()), u"NS.pointval"_s);
}

void encodeSize(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeInt64(Size, u"NS.special"_s);
    writer.encodeObject(stringFromSize(value.toSizeF()), u"NS.sizeval"_s);
}

void encodeRectangle(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeInt64(Rectangle, u"NS.special"_s);
    writer.encodeObject(stringFromRectangle(value.toRectF()), u"NS.rectval"_s);
}

void encodeRange(const QVariant &value, KeyedFieldWriter &writer)
{
    const auto range = value.value<Range>();
    writer.encodeInt64(RangeOfUnits, u"NS.special"_s);
    writer.encodeObject(quint64{range.location}, u"NS.rangeval.location"_s);
    writer.encodeObject(quint64{range.length}, u"NS.rangeval.length"_s);
}

void encodeEdgeInsets(const QVariant &value, KeyedFieldWriter &writer)
{
    const bool isWhole = value.metaType() == QMetaType::fromType<QMargins>();
    const QMarginsF insets = isWhole ? QMarginsF(value.value<QMargins>()) : value.value<QMarginsF>();
    writer.encodeInt64(EdgeInsets, u"NS.special"_s);
    writer.encodeDouble(insets.top(), u"NS.edgeval.top"_s);
    writer.encodeDouble(insets.left(), u"NS.edgeval.left"_s);
    writer.encodeDouble(insets.bottom(), u"NS.edgeval.bottom"_s);
    writer.encodeDouble(insets.right(), u"NS.edgeval.right"_s);
}

} // namespace platform
