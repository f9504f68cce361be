#include <OrvaneExportKit/text/QuotationTable.h>

#include <OrvaneExportKit/platform/Bundle.h>
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

QuotationMarks marksInTable(const QVariantMap &table, const QString &language)
{
    const auto entries = member<QVariantList>(table, language);
    if (!entries) {
        return {};
    }
    requireIndex("quotationMarks", 0, static_cast<std::size_t>(entries->size()));
    const auto marks = required<QVariantMap>(entries->constFirst(), language + u"[0]"_s);
    return {member<QString>(marks, u"begin"_s), member<QString>(marks, u"end"_s)};
}

} // namespace

QStringList sampleLanguages()
{
    return {u"af"_s, u"de"_s, u"sv"_s, u"en_US"_s, u"en_UK"_s, u"de_CH"_s, u"it"_s, u"fr"_s, u"ja"_s};
}

QuotationMarks quotationMarks(const Bundle &bundle, const QString &language)
{
    return marksInTable(readTable(bundle), language);
}

QStringList quotationSamples(const Bundle &bundle)
{
    const QVariantMap table = readTable(bundle);
    const QString missing = u"(null)"_s;
    QStringList samples;
    for (const QString &language : sampleLanguages()) {
        const QuotationMarks marks = marksInTable(table, language);
        samples.append(marks.begin.value_or(missing) + u"abc"_s + marks.end.value_or(missing));
    }
    return samples;
}

} // namespace platform
