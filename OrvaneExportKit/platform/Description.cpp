#include <OrvaneExportKit/platform/Description.h>

#include <QtCore/QDateTime>
#include <QtCore/QJsonDocument>

namespace platform {

QString description(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODateWithMs);
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
    case QMetaType::QStringList:
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
