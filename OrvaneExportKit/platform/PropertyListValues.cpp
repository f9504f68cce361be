#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <OrvaneExportKit/platform/PropertyList.h>

#include <limits>

namespace platform {

PropertyListKind propertyListKind(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return PropertyListKind::String;
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return PropertyListKind::SignedInteger;
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return PropertyListKind::UnsignedInteger;
    case QMetaType::Double:
        return PropertyListKind::Real;
    case QMetaType::Float:
        return PropertyListKind::ShortReal;
    case QMetaType::Bool:
        return PropertyListKind::Boolean;
    case QMetaType::QDateTime:
        return PropertyListKind::Date;
    case QMetaType::QByteArray:
        return PropertyListKind::Data;
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return PropertyListKind::Array;
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return PropertyListKind::Dictionary;
    default:
        return value.metaType() == QMetaType::fromType<PropertyList::Uid>() ? PropertyListKind::Uid
                                                                            : PropertyListKind::None;
    }
}

QVariant integerValue(quint64 number)
{
    if (number > static_cast<quint64>(std::numeric_limits<qint64>::max())) {
        return number;
    }
    return static_cast<qint64>(number);
}

} // namespace platform
