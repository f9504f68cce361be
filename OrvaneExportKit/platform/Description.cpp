#include <OrvaneExportKit/platform/Description.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/Utf8.h>
#include <OrvaneExportKit/platform/ValueExtent.h>

#include <QtCore/QDateTime>
#include <QtCore/QJsonDocument>

namespace platform {

namespace {

/// What a list or a dictionary may hold that is written as text.
constexpr quint64 largestValue = 1'048'576;

void requireDescribable(const QVariant &value)
{
    const ValueExtent extent = extentOf(value);
    if (extent.size > largestValue || extent.nesting > PropertyList::maximumNesting) {
        throw InvalidArgumentException(
            "a list or dictionary cannot be written as text: it holds more than 1048576 bytes, "
            "or more than 512 lists and dictionaries inside each other");
    }
}

} // namespace

QString description(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QByteArray: // an invalid byte becomes U+FFFD
        return stringFromUtf8(value.toByteArray()).value_or(value.toString());
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODateWithMs);
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
    case QMetaType::QStringList:
        requireDescribable(value);
        return QString::fromUtf8(QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact));
    default:
        break;
    }
    if (!value.isValid() || value.canConvert<QString>()) {
        return value.toString();
    }
    return u'<' + QLatin1String(value.typeName()) + u'>';
}

} // namespace platform
