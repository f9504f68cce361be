#include <OrvaneExportKit/platform/KeyedCollections.h>

#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/Base128.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedDecoder.h>
#include <OrvaneExportKit/platform/KeyedFieldReader.h>
#include <OrvaneExportKit/platform/KeyedFieldWriter.h>
#include <OrvaneExportKit/platform/Range.h>

#include <algorithm>
#include <unordered_map>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

/// The elements as one array of references, or numbered one by one.
QVariantList decodeElements(KeyedFieldReader &reader)
{
    return reader.containsValueForKey(u"NS.objects"_s) ? reader.objectsForKey(u"NS.objects"_s)
                                                       : reader.numberedObjects(u"NS.object."_s);
}

QVariantList decodeKeys(KeyedFieldReader &reader)
{
    return reader.containsValueForKey(u"NS.keys"_s) ? reader.objectsForKey(u"NS.keys"_s)
                                                    : reader.numberedObjects(u"NS.key."_s);
}

/// For every value the place of the first one that equals it.
QList<qsizetype> placesOfFirstEqual(KeyedFieldReader &reader, const QVariantList &values)
{
    std::unordered_map<quint64, qsizetype> firstPlaces;
    QList<qsizetype> places;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const std::optional<quint64> number = reader.decoder().numberOf(values[i]);
        places.append(number ? firstPlaces.try_emplace(*number, i).first->second : i);
    }
    return places;
}

/// The elements of a set, each once.
QVariantList decodeDistinctElements(KeyedFieldReader &reader)
{
    QVariantList elements = decodeElements(reader);
    if (elements.size() < 2) {
        return elements;
    }
    const QList<qsizetype> places = placesOfFirstEqual(reader, elements);
    QVariantList distinct;
    for (qsizetype i = 0; i < elements.size(); ++i) {
        if (places[i] == i) {
            distinct.append(elements[i]);
        }
    }
    return distinct;
}

/// With every key once; of several objects the last counts, as in a dictionary whose keys are strings.
ObjectDictionary dictionaryOf(KeyedFieldReader &reader, const QVariantList &keys, const QVariantList &objects)
{
    const QList<qsizetype> places = placesOfFirstEqual(reader, keys);
    QList<qsizetype> newPlaces;
    ObjectDictionary dictionary;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        if (places[i] == i) {
            newPlaces.append(dictionary.keys.size());
            dictionary.keys.append(keys[i]);
            dictionary.objects.append(objects[i]);
        } else {
            newPlaces.append(newPlaces[places[i]]);
            dictionary.objects[newPlaces[i]] = objects[i];
        }
    }
    return dictionary;
}

/// The elements of a counted set, which stand as those of a set where the archive has no counts.
QVariantList decodeCountedElements(KeyedFieldReader &reader)
{
    const bool isCounted = reader.containsValueForKey(u"NS.count"_s) || reader.containsValueForKey(u"NS.object0"_s);
    return isCounted ? reader.numberedObjects(u"NS.object"_s) : decodeElements(reader);
}

bool isString(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QString>();
}

QList<quint64> decodeNumbers(KeyedFieldReader &reader, const QString &key)
{
    const QByteArray data = reader.dataForKey(key);
    reader.decoder().spend(static_cast<quint64>(data.size()) * sizeof(quint64));
    QByteArrayView bytes = data;
    QList<quint64> numbers;
    while (!bytes.isEmpty()) {
        const std::optional<quint64> number = takeBase128(bytes);
        if (!number) {
            reader.fail(u"`%1` holds a number that is cut off or too large"_s.arg(key));
        }
        numbers.append(*number);
    }
    return numbers;
}

QByteArray encodedNumbers(const QList<quint64> &numbers)
{
    QByteArray bytes;
    for (const quint64 number : numbers) {
        appendBase128(bytes, number);
    }
    return bytes;
}

} // namespace

QVariant decodeArray(KeyedFieldReader &reader)
{
    return decodeElements(reader);
}

QVariant decodeDictionary(KeyedFieldReader &reader)
{
    const QVariantList keys = decodeKeys(reader);
    const QVariantList objects = decodeElements(reader);
    if (keys.size() != objects.size()) {
        reader.fail(u"there are %1 keys and %2 objects"_s.arg(keys.size()).arg(objects.size()));
    }
    if (!std::all_of(keys.begin(), keys.end(), isString)) {
        return QVariant::fromValue(dictionaryOf(reader, keys, objects));
    }
    QVariantMap map;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        map.insert(keys[i].toString(), objects[i]);
    }
    return map;
}

QVariant decodeSet(KeyedFieldReader &reader)
{
    return QVariant::fromValue(ObjectSet{decodeDistinctElements(reader)});
}

QVariant decodeOrderedSet(KeyedFieldReader &reader)
{
    return QVariant::fromValue(OrderedObjectSet{decodeDistinctElements(reader)});
}

QVariant decodeCountedSet(KeyedFieldReader &reader)
{
    const QVariantList elements = decodeCountedElements(reader);
    if (reader.containsValueForKey(u"NS.count"_s) &&
        reader.countForKey(u"NS.count"_s) != static_cast<quint64>(elements.size())) {
        reader.fail(u"`NS.count` is not the number of elements, %1"_s.arg(elements.size()));
    }
    const QList<qsizetype> places = placesOfFirstEqual(reader, elements);
    QList<qsizetype> newPlaces;
    CountedObjectSet set;
    for (qsizetype i = 0; i < elements.size(); ++i) {
        const QString key = u"NS.count%1"_s.arg(i);
        const quint64 count = reader.containsValueForKey(key) ? reader.countForKey(key) : 1;
        newPlaces.append(places[i] == i ? set.elements.size() : newPlaces[places[i]]);
        if (places[i] == i) {
            set.elements.append(elements[i]);
            set.counts.append(count);
        } else {
            set.counts[newPlaces[i]] += count;
        }
    }
    return QVariant::fromValue(set);
}

QVariant decodeIndexSet(KeyedFieldReader &reader)
{
    const quint64 count = reader.countForKey(u"NSRangeCount"_s);
    QList<quint64> numbers;
    if (count == 1) {
        numbers = {reader.countForKey(u"NSLocation"_s), reader.countForKey(u"NSLength"_s)};
    } else if (count > 1) {
        numbers = decodeNumbers(reader, u"NSRangeData"_s);
    }
    const auto found = static_cast<quint64>(numbers.size());
    if (found % 2 != 0 || found / 2 != count) {
        reader.fail(u"`NSRangeData` does not hold the %1 ranges that `NSRangeCount` says"_s.arg(count));
    }
    RangeList ranges;
    for (qsizetype i = 0; i < numbers.size(); i += 2) {
        ranges.push_back({numbers[i], numbers[i + 1]});
    }
    return QVariant::fromValue(ranges);
}

QVariant decodeIndexPath(KeyedFieldReader &reader)
{
    const quint64 length = reader.countForKey(u"NSIndexPathLength"_s);
    IndexPath path;
    if (length == 1) {
        path.indices = {reader.countForKey(u"NSIndexPathValue"_s)};
    } else if (length > 1) {
        path.indices = decodeNumbers(reader, u"NSIndexPathData"_s);
    }
    if (static_cast<quint64>(path.indices.size()) != length) {
        reader.fail(u"`NSIndexPathData` does not hold the %1 indices that `NSIndexPathLength` says"_s.arg(length));
    }
    return QVariant::fromValue(path);
}

void encodeArray(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeObjects(value.toList(), u"NS.objects"_s);
}

void encodeMap(const QVariant &value, KeyedFieldWriter &writer)
{
    const QVariantMap map = value.toMap();
    const QStringList keys = map.keys();
    writer.encodeObjects(QVariantList(keys.begin(), keys.end()), u"NS.keys"_s);
    writer.encodeObjects(map.values(), u"NS.objects"_s);
}

void encodeDictionary(const QVariant &value, KeyedFieldWriter &writer)
{
    const auto dictionary = value.value<ObjectDictionary>();
    if (dictionary.keys.size() != dictionary.objects.size()) {
        throw InvalidArgumentException("encodeObject: a dictionary has " + std::to_string(dictionary.keys.size()) +
                                       " keys and " + std::to_string(dictionary.objects.size()) + " objects");
    }
    writer.encodeObjects(dictionary.keys, u"NS.keys"_s);
    writer.encodeObjects(dictionary.objects, u"NS.objects"_s);
}

void encodeSet(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeObjects(value.value<ObjectSet>().elements, u"NS.objects"_s);
}

void encodeOrderedSet(const QVariant &value, KeyedFieldWriter &writer)
{
    writer.encodeNumberedObjects(value.value<OrderedObjectSet>().elements, u"NS.object."_s);
}

void encodeCountedSet(const QVariant &value, KeyedFieldWriter &writer)
{
    const auto set = value.value<CountedObjectSet>();
    if (set.elements.size() != set.counts.size()) {
        throw InvalidArgumentException("encodeObject: a counted set has " + std::to_string(set.elements.size()) +
                                       " elements and " + std::to_string(set.counts.size()) + " counts");
    }
    writer.encodeInt64(set.elements.size(), u"NS.count"_s);
    writer.encodeNumberedObjects(set.elements, u"NS.object"_s);
    for (qsizetype i = 0; i < set.counts.size(); ++i) {
        writer.encodeCount(set.counts[i], u"NS.count%1"_s.arg(i));
    }
}

void encodeIndexSet(const QVariant &value, KeyedFieldWriter &writer)
{
    const auto ranges = value.value<RangeList>();
    writer.encodeCount(ranges.size(), u"NSRangeCount"_s);
    if (ranges.size() == 1) {
        writer.encodeCount(ranges.front().location, u"NSLocation"_s);
        writer.encodeCount(ranges.front().length, u"NSLength"_s);
    } else if (!ranges.empty()) {
        QList<quint64> numbers;
        for (const Range &range : ranges) {
            numbers << range.location << range.length;
        }
        writer.encodeBytes(encodedNumbers(numbers), u"NSRangeData"_s);
    }
}

void encodeIndexPath(const QVariant &value, KeyedFieldWriter &writer)
{
    const auto indices = value.value<IndexPath>().indices;
    writer.encodeInt64(indices.size(), u"NSIndexPathLength"_s);
    if (indices.size() == 1) {
        writer.encodeCount(indices.front(), u"NSIndexPathValue"_s);
    } else if (!indices.isEmpty()) {
        writer.encodeBytes(encodedNumbers(indices), u"NSIndexPathData"_s);
    }
}

} // namespace platform
