#include <OrvaneExportKit/platform/ScalarValues.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QString>

#include <algorithm>
#include <cmath>
#include <concepts>
#include <limits>
#include <string>

namespace platform {

namespace {

qsizetype signLength(QStringView text)
{
    return text.startsWith(u'-') || text.startsWith(u'+') ? 1 : 0;
}

/// Where the decimal digits end that stand at `position`.
qsizetype endOfDigits(QStringView text, qsizetype position)
{
    while (position < text.size() && text[position] >= u'0' && text[position] <= u'9') {
        ++position;
    }
    return position;
}

/// Where the exponent ends that stands at `position`; `position` when none with a digit does.
qsizetype endOfExponent(QStringView text, qsizetype position)
{
    if (!text.mid(position).startsWith(u'e', Qt::CaseInsensitive)) {
        return position;
    }
    const qsizetype digits = position + 1 + signLength(text.mid(position + 1));
    const qsizetype end = endOfDigits(text, digits);
    return end == digits ? position : end;
}

float leadingReal(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    qsizetype end = endOfDigits(trimmed, signLength(trimmed));
    if (trimmed.mid(end).startsWith(u'.')) {
        end = endOfDigits(trimmed, end + 1);
    }
    return trimmed.left(endOfExponent(trimmed, end)).toFloat();
}

qint64 leadingInteger(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const qsizetype start = signLength(trimmed);
    const qsizetype end = endOfDigits(trimmed, start);
    bool fits = false;
    const qint64 number = trimmed.left(end).toLongLong(&fits);
    if (fits || start == end) {
        return number;
    }
    return trimmed.startsWith(u'-') ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
}

/// The number within the limits of `Target`, whose ends `Number` must be able to hold.
template <typename Target, typename Number>
Target saturated(Number number)
{
    using Limits = std::numeric_limits<Target>;
    return static_cast<Target>(
        std::clamp(number, static_cast<Number>(Limits::min()), static_cast<Number>(Limits::max())));
}

template <typename Target>
Target castReal(double number)
{
    if constexpr (std::same_as<Target, float> || std::same_as<Target, bool>) {
        return static_cast<Target>(number);
    } else {
        return std::isnan(number) ? Target(0) : saturated<Target>(number);
    }
}

template <typename Target>
Target parsedText(const QString &text)
{
    if constexpr (std::same_as<Target, float>) {
        return leadingReal(text);
    } else if constexpr (std::same_as<Target, bool>) {
        return leadingInteger(text) != 0;
    } else {
        return saturated<Target>(leadingInteger(text));
    }
}

template <typename Target>
Target scalarValue(const QVariant &value, const char *reader)
{
    if (value.isNull()) {
        return Target(0);
    }
    switch (propertyListKind(value)) {
    case PropertyListKind::SignedInteger:
        return static_cast<Target>(value.toLongLong());
    case PropertyListKind::UnsignedInteger:
        return static_cast<Target>(value.toULongLong());
    case PropertyListKind::Boolean:
        return static_cast<Target>(value.toBool());
    case PropertyListKind::Real:
    case PropertyListKind::ShortReal:
        return castReal<Target>(value.toDouble());
    case PropertyListKind::String:
        return parsedText<Target>(value.toString());
    case PropertyListKind::None:
    case PropertyListKind::Date:
    case PropertyListKind::Data:
    case PropertyListKind::Uid:
    case PropertyListKind::Array:
    case PropertyListKind::Dictionary:
        break;
    }
    throw UnrecognisedOperationException(std::string(reader) + ": a value of type " + value.typeName() +
                                         " has no number");
}

} // namespace

float floatValue(const QVariant &value)
{
    return scalarValue<float>(value, "floatValue");
}

qint32 intValue(const QVariant &value)
{
    return scalarValue<qint32>(value, "intValue");
}

quint32 unsignedIntValue(const QVariant &value)
{
    return scalarValue<quint32>(value, "unsignedIntValue");
}

quint8 unsignedCharValue(const QVariant &value)
{
    return scalarValue<quint8>(value, "unsignedCharValue");
}

qint8 charValue(const QVariant &value)
{
    return scalarValue<qint8>(value, "charValue");
}

bool boolValue(const QVariant &value)
{
    return scalarValue<bool>(value, "boolValue");
}

} // namespace platform
