#include <OrvaneExportKit/text/QuotationTable.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/Description.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QFile>
#include <QtCore/QVariant>

using namespace Qt::Literals::StringLiterals;

namespace platform {

namespace {

QVariantMap readTable(const Bundle &bundle)
{
    QFile file(bundle.pathForResource(u"Quotes"_s, u"plist"_s));
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return PropertyList::read(file.readAll()).value.value_or(QVariant()).toMap();
}

template <typename Kind>
Kind required(const QVariant &value, const QString &name)
{
    if (value.metaType() != QMetaType::fromType<Kind>()) {
        const auto message = u"quotationMarks: \"%1\" is of the kind %2, not %3"_s.arg(
            name, QLatin1StringView(value.typeName()), QLatin1StringView(QMetaType::fromType<Kind>().name()));
        throw UnrecognisedOperationException(message.toStdString());
    }
    return value.value<Kind>();
}

template <typename Kind>
std::optional<Kind> member(const QVariantMap &dictionary, const QString &key)
{
    const auto found = dictionary.find(key);
    return found == dictionary.end() ? std::nullopt : std::optional(required<Kind>(*found, key));
}

/// The first element of a language's array; empty for a language that is not in the table.
QVariantMap firstElement(const QVariantMap &table, const QString &language)
{
    const auto entries = member<QVariantList>(table, language);
    if (!entries) {
        return {};
    }
    requireIndex("quotationMarks", 0, static_cast<std::size_t>(entries->size()));
    return required<QVariantMap>(entries->constFirst(), language + u"[0]"_s);
}

/// What a sample shows for a mark.
QString shownMark(const QVariantMap &marks, const QString &name)
{
    const auto found = marks.find(name);
    return found == marks.end() ? u"(null)"_s : description(*found);
}

} // namespace

QStringList quotationLanguages(const Bundle &bundle)
{
    return readTable(bundle).keys();
}

QStringList sampleLanguages()
{
    return {u"af"_s, u"de"_s, u"sv"_s, u"en_US"_s, u"en_UK"_s, u"de_CH"_s, u"it"_s, u"fr"_s, u"ja"_s};
}

QuotationMarks quotationMarks(const Bundle &bundle, const QString &language)
{
    const QVariantMap marks = firstElement(readTable(bundle), language);
    return {member<QString>(marks, u"begin"_s), member<QString>(marks, u"end"_s)};
}

QStringList quotationSamples(const Bundle &bundle)
{
    const QVariantMap table = readTable(bundle);
    QStringList samples;
    for (const QString &language : sampleLanguages()) {
        const QVariantMap marks = firstElement(table, language);
        samples.append(shownMark(marks, u"begin"_s) + u"abc"_s + shownMark(marks, u"end"_s));
    }
    return samples;
}

} // namespace platform
