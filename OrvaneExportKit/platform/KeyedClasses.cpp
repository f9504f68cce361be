#include <OrvaneExportKit/platform/KeyedClasses.h>

#include <OrvaneExportKit/platform/ArchivedClasses.h>
#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/KeyedCollections.h>
#include <OrvaneExportKit/platform/KeyedFieldReader.h>
#include <OrvaneExportKit/platform/KeyedFieldWriter.h>
#include <OrvaneExportKit/platform/KeyedScalars.h>
#include <OrvaneExportKit/platform/KeyedTexts.h>
#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QDateTime>
#include <QtCore/QMarginsF>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QUrl>
#include <QtCore/QUuid>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

using Decode = QVariant (*)(KeyedFieldReader &);
using Encode = void (*)(const QVariant &, KeyedFieldWriter &);

struct ReadClass {
    QStringView name;
    Decode decode;
};

constexpr ReadClass readClasses[] = {
    {u"NSString", decodeString},
    {u"NSMutableString", decodeString},
    {u"NSNumber", decodeNumber},
    {u"NSDecimalNumber", decodeDecimalNumber},
    {u"NSNull", decodeNull},
    {u"NSData", decodeData},
    {u"NSMutableData", decodeData},
    {u"NSDate", decodeDate},
    {u"NSURL", decodeUrl},
    {u"NSUUID", decodeUuid},
    {u"NSValue", decodeGeometry},
    {u"NSArray", decodeArray},
    {u"NSMutableArray", decodeArray},
    {u"NSDictionary", decodeDictionary},
    {u"NSMutableDictionary", decodeDictionary},
    {u"NSSet", decodeSet},
    {u"NSMutableSet", decodeSet},
    {u"NSOrderedSet", decodeOrderedSet},
    {u"NSMutableOrderedSet", decodeOrderedSet},
    {u"NSCountedSet", decodeCountedSet},
    {u"NSIndexSet", decodeIndexSet},
    {u"NSMutableIndexSet", decodeIndexSet},
    {u"NSIndexPath", decodeIndexPath},
    {u"NSAttributedString", decodeAttributedString},
    {u"NSMutableAttributedString", decodeAttributedString},
    {u"NSTextStorage", decodeAttributedString},
};

struct WrittenClass {
    QMetaType type;
    QStringList names; ///< without the last, which all have
    Encode encode;
};

const QList<WrittenClass> &writtenClasses()
{
    static const QList<WrittenClass> classes{
        {QMetaType::fromType<std::nullptr_t>(), {u"NSNull"_s}, encodeNull},
        {QMetaType::fromType<QDateTime>(), {u"NSDate"_s}, encodeDate},
        {QMetaType::fromType<QDate>(), {u"NSDate"_s}, encodeDate},
        {QMetaType::fromType<QUrl>(), {u"NSURL"_s}, encodeUrl},
        {QMetaType::fromType<ArchivedUrl>(), {u"NSURL"_s}, encodeArchivedUrl},
        {QMetaType::fromType<QUuid>(), {u"NSUUID"_s}, encodeUuid},
        {QMetaType::fromType<QPointF>(), {u"NSValue"_s}, encodePoint},
        {QMetaType::fromType<QPoint>(), {u"NSValue"_s}, encodePoint},
        {QMetaType::fromType<QSizeF>(), {u"NSValue"_s}, encodeSize},
        {QMetaType::fromType<QSize>(), {u"NSValue"_s}, encodeSize},
        {QMetaType::fromType<QRectF>(), {u"NSValue"_s}, encodeRectangle},
        {QMetaType::fromType<QRect>(), {u"NSValue"_s}, encodeRectangle},
        {QMetaType::fromType<Range>(), {u"NSValue"_s}, encodeRange},
        {QMetaType::fromType<QMarginsF>(), {u"NSValue"_s}, encodeEdgeInsets},
        {QMetaType::fromType<QMargins>(), {u"NSValue"_s}, encodeEdgeInsets},
        {QMetaType::fromType<QVariantList>(), {u"NSArray"_s}, encodeArray},
        {QMetaType::fromType<QStringList>(), {u"NSArray"_s}, encodeArray},
        {QMetaType::fromType<QVariantMap>(), {u"NSDictionary"_s}, encodeMap},
        {QMetaType::fromType<QVariantHash>(), {u"NSDictionary"_s}, encodeMap},
        {QMetaType::fromType<ObjectDictionary>(), {u"NSDictionary"_s}, encodeDictionary},
        {QMetaType::fromType<ObjectSet>(), {u"NSSet"_s}, encodeSet},
        {QMetaType::fromType<OrderedObjectSet>(), {u"NSOrderedSet"_s}, encodeOrderedSet},
        {QMetaType::fromType<CountedObjectSet>(), {u"NSCountedSet"_s, u"NSMutableSet"_s, u"NSSet"_s}, encodeCountedSet},
        {QMetaType::fromType<RangeList>(), {u"NSIndexSet"_s}, encodeIndexSet},
        {QMetaType::fromType<IndexPath>(), {u"NSIndexPath"_s}, encodeIndexPath},
        {QMetaType::fromType<AttributedString>(), {u"NSAttributedString"_s}, encodeAttributedString},
    };
    return classes;
}

} // namespace

KeyedDecode keyedDecode(const QString &className)
{
    if (const auto registered = archivedClassNamed(className)) {
        return [registered](KeyedFieldReader &reader) {
            return registered->decode(reader);
        };
    }
    for (const ReadClass &readClass : readClasses) {
        if (readClass.name == className) {
            return readClass.decode;
        }
    }
    return {};
}

std::optional<KeyedEncode> keyedEncode(QMetaType type)
{
    if (const auto registered = archivedClassOfType(type)) {
        return KeyedEncode{registered->classNames, [registered](const QVariant &value, KeyedFieldWriter &writer) {
                               registered->encode(value, writer);
                           }};
    }
    for (const WrittenClass &writtenClass : writtenClasses()) {
        if (writtenClass.type == type) {
            return KeyedEncode{writtenClass.names + QStringList{u"NSObject"_s}, writtenClass.encode};
        }
    }
    return std::nullopt;
}

} // namespace platform
