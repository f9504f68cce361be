#include <OrvaneExportKit/platform/KeyedArchive.h>

#include <OrvaneExportKit/platform/ArchiveKinds.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/PropertyList.h>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

const QVariantMap *asMap(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QVariantMap>() ? static_cast<const QVariantMap *>(value.constData())
                                                                  : nullptr;
}

std::string placeOf(quint32 index)
{
    return "object " + std::to_string(index);
}

QVariantMap readPropertyList(QByteArrayView data)
{
    if (isTypedStream(data)) {
        failInArchive("the archive", typedStreamComplaint());
    }
    const PropertyList::ReadResult list = PropertyList::read(data);
    if (!list.value) {
        failInArchive("the archive is no property list", list.error);
    }
    const QVariantMap *archive = asMap(*list.value);
    if (archive == nullptr) {
        failInArchive("the archive", u"is no dictionary"_s);
    }
    return *archive;
}

template <typename Value>
Value required(const QVariantMap &archive, const QString &key)
{
    const auto entry = archive.find(key);
    if (entry == archive.end() || entry->metaType() != QMetaType::fromType<Value>()) {
        failInArchive("the archive",
                      entry == archive.end() ? u"`%1` is missing"_s.arg(key) : u"`%1` is of the wrong type"_s.arg(key));
    }
    return entry->value<Value>();
}

} // namespace

KeyedArchive::KeyedArchive(QByteArrayView data) : m_size(static_cast<quint64>(data.size()))
{
    const QVariantMap archive = readPropertyList(data);
    const QString archiver = required<QString>(archive, u"$archiver"_s);
    if (archiver != u"NSKeyedArchiver") {
        failInArchive("the archive", u"`$archiver` is `%1`, not `NSKeyedArchiver`"_s.arg(archiver));
    }
    const qint64 foundVersion = required<qint64>(archive, u"$version"_s);
    if (foundVersion != version) {
        failInArchive("the archive", u"`$version` is %1, not %2"_s.arg(foundVersion).arg(version));
    }
    m_top = required<QVariantMap>(archive, u"$top"_s);
    m_objects = required<QVariantList>(archive, u"$objects"_s);
}

const QVariantMap &KeyedArchive::fields(quint32 index) const
{
    const QVariantMap *fields = asMap(m_objects[index]);
    if (fields == nullptr) {
        failInArchive(placeOf(index), u"is neither a plain value nor a dictionary with a class"_s);
    }
    return *fields;
}

quint32 KeyedArchive::classIndex(quint32 index) const
{
    const QVariantMap &object = fields(index);
    const auto reference = object.find(u"$class"_s);
    if (reference == object.end()) {
        failInArchive(placeOf(index), u"`$class` is missing"_s);
    }
    if (reference->metaType() != QMetaType::fromType<PropertyList::Uid>()) {
        failInArchive(placeOf(index), u"`$class` is no reference"_s);
    }
    const quint32 classIndex = reference->value<PropertyList::Uid>().value;
    if (classIndex >= objectCount()) {
        failInArchive(placeOf(index),
                      u"`$class` refers to object %1; the archive has %2"_s.arg(classIndex).arg(objectCount()));
    }
    return classIndex;
}

KeyedArchive::Class KeyedArchive::classAt(quint32 classIndex) const
{
    const std::string place = placeOf(classIndex) + " (a class)";
    const QVariantMap *fields = asMap(m_objects[classIndex]);
    if (fields == nullptr) {
        failInArchive(place, u"is no dictionary"_s);
    }
    Class result{fields->value(u"$classname"_s).toString(), {}};
    if (result.name.isEmpty() || fields->value(u"$classname"_s).metaType() != QMetaType::fromType<QString>()) {
        failInArchive(place, u"`$classname` is missing, empty or no string"_s);
    }
    const QVariant names = fields->value(u"$classes"_s, QVariantList());
    if (names.metaType() != QMetaType::fromType<QVariantList>()) {
        failInArchive(place, u"`$classes` is no array"_s);
    }
    const QVariantList list = names.toList();
    for (const QVariant &name : list) {
        if (name.metaType() != QMetaType::fromType<QString>()) {
            failInArchive(place, u"`$classes` holds something that is no string"_s);
        }
        result.names.append(name.toString());
    }
    return result;
}

QString KeyedArchive::archivedKey(const QString &key)
{
    return key.startsWith(u'$') ? u'$' + key : key;
}

void failInArchive(const std::string &place, const QString &complaint)
{
    throw ArchiveException(place + ": " + complaint.toStdString());
}

} // namespace platform
