#include "Values.h"

#include "ProgramError.h"

#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QTimeZone>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;

namespace defaults {

namespace {

constexpr std::array<std::pair<QStringView, ValueType>, 7> typeNames{{
    {u"string", ValueType::String},
    {u"int", ValueType::Integer},
    {u"float", ValueType::Float},
    {u"bool", ValueType::Boolean},
    {u"date", ValueType::Date},
    {u"data", ValueType::Data},
    {u"plist", ValueType::PropertyList},
}};

QVariant integerFromText(const QString &text)
{
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (isNumber) {
        return number;
    }
    const quint64 largeNumber = text.toULongLong(&isNumber);
    if (!isNumber) {
        throw usageError(u"'%1' is not an int: write digits, and no more than 64 bits hold"_s.arg(text));
    }
    return largeNumber;
}

double floatFromText(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber) {
        throw usageError(u"'%1' is not a float: write a number such as 2.54"_s.arg(text));
    }
    return number;
}

bool booleanFromText(const QString &text)
{
    const QString word = text.toLower();
    if (word == u"true" || word == u"yes" || word == u"1") {
        return true;
    }
    if (word == u"false" || word == u"no" || word == u"0") {
        return false;
    }
    throw usageError(u"'%1' is not a bool: write true or false"_s.arg(text));
}

QDateTime dateFromText(const QString &text)
{
    QDateTime date = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!date.isValid()) {
        throw usageError(u"'%1' is not a date: write it like 2024-12-31T18:00:00Z"_s.arg(text));
    }
    return date;
}

QByteArray dataFromText(const QString &text)
{
    const auto data = QByteArray::fromBase64Encoding(text.toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (!data) {
        throw usageError(u"'%1' is not data: write it in base64"_s.arg(text));
    }
    return *data;
}

QVariant propertyListFromText(const QString &text)
{
    const PropertyList::ReadResult list = PropertyList::read(text.toUtf8(), PropertyList::XmlUids::AsDictionaries);
    if (!list.value) {
        throw usageError(u"This is not a property list: %1"_s.arg(list.error));
    }
    return *list.value;
}

QString propertyListText(const QVariant &value)
{
    const PropertyList::WriteResult list = PropertyList::write(value, PropertyList::Format::Xml);
    if (!list.data) {
        throw ProgramError(ExitCode::Failure,
                           u"This cannot be shown: %1; write another value there."_s.arg(list.error));
    }
    return QString::fromUtf8(*list.data).chopped(1);
}

} // namespace

ValueType valueType(const QString &name)
{
    const auto *const type = std::find_if(typeNames.begin(), typeNames.end(),
                                          [&](const auto &candidate) { return candidate.first == name; });
    if (type == typeNames.end()) {
        throw usageError(u"There is no type '%1'"_s.arg(name));
    }
    return type->second;
}

QVariant valueFromText(const QString &text, ValueType type)
{
    switch (type) {
    case ValueType::String:
        break;
    case ValueType::Integer:
        return integerFromText(text);
    case ValueType::Float:
        return floatFromText(text);
    case ValueType::Boolean:
        return booleanFromText(text);
    case ValueType::Date:
        return dateFromText(text);
    case ValueType::Data:
        return dataFromText(text);
    case ValueType::PropertyList:
        return propertyListFromText(text);
    }
    return text;
}

QString textFromValue(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Bool:
        return value.toString();
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODate);
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toBase64());
    default:
        return propertyListText(value);
    }
}

} // namespace defaults
