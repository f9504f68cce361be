#include <OrvaneExportKit/platform/KeyedTexts.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Base128.h>
#include <OrvaneExportKit/platform/KeyedDecoder.h>
#include <OrvaneExportKit/platform/KeyedFieldReader.h>
#include <OrvaneExportKit/platform/KeyedFieldWriter.h>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

using Stretches = QList<AttributedString::Stretch>;

/// Attributes are compared whenever units with others come to stand beside them, so there is an end to what they hold.
QVariantMap requireAttributes(KeyedFieldReader &reader, const QVariant &dictionary)
{
    constexpr quint64 maximumValues = 1ULL << 20;
    QVariantMap attributes = dictionary.toMap();
    if (reader.decoder().valuesInside(attributes) > maximumValues) {
        reader.fail(u"`NSAttributes` has a dictionary with more than %1 values inside each other"_s.arg(maximumValues));
    }
    return attributes;
}

QList<QVariantMap> decodeAttributeDictionaries(KeyedFieldReader &reader, const QVariant &attributes)
{
    const QVariantList list = attributes.toList();
    reader.decoder().spend(static_cast<quint64>(list.size()) * sizeof(QVariantMap));
    QList<QVariantMap> dictionaries;
    for (const QVariant &dictionary : list) {
        if (dictionary.metaType() != QMetaType::fromType<QVariantMap>()) {
            reader.fail(u"`NSAttributes` holds something that is no dictionary of attributes"_s);
        }
        dictionaries.append(requireAttributes(reader, dictionary));
    }
    return dictionaries;
}

/// What the bytes say of each stretch: its length and the index of its attributes.
Stretches decodeStretches(KeyedFieldReader &reader, const QList<QVariantMap> &dictionaries, std::size_t textLength)
{
    const QByteArray data = reader.dataForKey(u"NSAttributeInfo"_s);
    reader.decoder().spend(static_cast<quint64>(data.size()) * sizeof(AttributedString::Stretch));
    QByteArrayView bytes = data;
    Stretches stretches;
    std::size_t unitsLeft = textLength;
    while (!bytes.isEmpty()) {
        const std::optional<quint64> length = takeBase128(bytes);
        const std::optional<quint64> index = length ? takeBase128(bytes) : std::nullopt;
        if (!index) {
            reader.fail(u"`NSAttributeInfo` holds a number that is cut off or too large"_s);
        }
        if (*length > unitsLeft) {
            reader.fail(u"`NSAttributeInfo` goes beyond the %1 units of the text"_s.arg(textLength));
        }
        if (*index >= static_cast<quint64>(dictionaries.size())) {
            reader.fail(u"`NSAttributeInfo` names attributes %1; there are %2"_s.arg(*index).arg(dictionaries.size()));
        }
        if (*length > 0) {
            stretches.append({*length, dictionaries[static_cast<qsizetype>(*index)]});
        }
        unitsLeft -= *length;
    }
    if (unitsLeft > 0) {
        reader.fail(u"`NSAttributeInfo` ends %1 units before the end of the text"_s.arg(unitsLeft));
    }
    return stretches;
}

void spendComparisons(KeyedDecoder &decoder, const Stretches &stretches)
{
    for (qsizetype i = 1; i < stretches.size(); ++i) {
        const QVariantMap &left = stretches[i - 1].attributes;
        const QVariantMap &right = stretches[i].attributes;
        if (!left.isSharedWith(right)) {
            decoder.spendComparison(std::min(decoder.valuesInside(left), decoder.valuesInside(right)));
        }
    }
}

} // namespace

QVariant decodeAttributedString(KeyedFieldReader &reader)
{
    const QString string = reader.stringObjectForKey(u"NSString"_s);
    const QVariant attributes = reader.decodeObjectForKey(u"NSAttributes"_s);
    if (string.isEmpty() || !attributes.isValid()) {
        return QVariant::fromValue(AttributedString(string));
    }
    if (attributes.metaType() == QMetaType::fromType<QVariantMap>()) {
        return QVariant::fromValue(AttributedString(string, requireAttributes(reader, attributes)));
    }
    if (attributes.metaType() != QMetaType::fromType<QVariantList>()) {
        reader.fail(u"`NSAttributes` is neither a dictionary of attributes nor an array of them"_s);
    }
    const auto length = static_cast<std::size_t>(string.size());
    const Stretches stretches = decodeStretches(reader, decodeAttributeDictionaries(reader, attributes), length);
    spendComparisons(reader.decoder(), stretches);
    return QVariant::fromValue(AttributedString::fromStretches(string, stretches));
}

void encodeAttributedString(const QVariant &value, KeyedFieldWriter &writer)
{
    const auto text = value.value<AttributedString>();
    writer.encodeObject(text.string(), u"NSString"_s);
    QVariantList dictionaries;
    QHash<quint32, qsizetype> indices;
    QByteArray stretches;
    for (Range run; run.end() < text.length();) {
        const QVariantMap attributes = text.attributesAtIndex(run.end(), &run);
        const quint32 reference = writer.reference(attributes);
        const auto known = indices.find(reference);
        const qsizetype index = known != indices.end() ? *known : *indices.insert(reference, dictionaries.size());
        if (index == dictionaries.size()) {
            dictionaries.append(attributes);
        }
        appendBase128(stretches, run.length);
        appendBase128(stretches, static_cast<quint64>(index));
    }
    if (dictionaries.size() == 1) {
        writer.encodeObject(dictionaries.first(), u"NSAttributes"_s);
    } else if (!dictionaries.isEmpty()) {
        writer.encodeArray(dictionaries, {u"NSMutableArray"_s, u"NSArray"_s, u"NSObject"_s}, u"NSAttributes"_s);
        writer.encodeObject(stretches, u"NSAttributeInfo"_s);
    }
}

} // namespace platform
