#include <OrvaneExportKit/platform/KeyedEncoder.h>

#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedFieldWriter.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QAssociativeIterable>
#include <QtCore/QScopeGuard>
#include <QtCore/QSequentialIterable>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

[[noreturn]] void refuse(const std::string &complaint)
{
    throw InvalidArgumentException("encodeObject: " + complaint);
}

template <typename Value>
bool holds(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<Value>();
}

template <typename Value>
const Value &content(const QVariant &value)
{
    return *static_cast<const Value *>(value.constData());
}

bool isPointer(const QVariant &value)
{
    return value.metaType().flags().testFlag(QMetaType::IsPointer);
}

const void *address(const QVariantMap &map)
{
    return map.isEmpty() ? nullptr : &map.firstKey();
}

bool isPlain(const QVariant &value)
{
    switch (propertyListKind(value)) {
    case PropertyListKind::SignedInteger:
    case PropertyListKind::UnsignedInteger:
    case PropertyListKind::Real:
    case PropertyListKind::ShortReal:
    case PropertyListKind::Boolean:
    case PropertyListKind::Data:
        return true;
    case PropertyListKind::None:
    case PropertyListKind::String:
    case PropertyListKind::Date:
    case PropertyListKind::Uid:
    case PropertyListKind::Array:
    case PropertyListKind::Dictionary:
        break;
    }
    return false;
}

void appendBytes(QByteArray &fingerprint, char kind, const void *bytes, qsizetype size)
{
    fingerprint += kind;
    fingerprint.append(reinterpret_cast<const char *>(&size), sizeof size);
    fingerprint.append(static_cast<const char *>(bytes), size);
}

/// Appends equal bytes for equal values of the same type. Most of what fields hold are references, which are quick.
void appendFingerprint(QByteArray &fingerprint, const QVariant &value)
{
    if (holds<PropertyList::Uid>(value)) {
        appendBytes(fingerprint, 'u', value.constData(), sizeof(PropertyList::Uid));
    } else if (holds<QVariantList>(value)) {
        const auto &list = content<QVariantList>(value);
        fingerprint += '[';
        for (const QVariant &element : list) {
            appendFingerprint(fingerprint, element);
        }
        fingerprint += ']';
    } else {
        const PropertyList::WriteResult written = PropertyList::write(value, PropertyList::Format::Binary);
        if (!written.data) {
            refuse(written.error.toStdString());
        }
        appendBytes(fingerprint, 'p', written.data->constData(), written.data->size());
    }
}

QByteArray fingerprint(const QVariantMap &fields)
{
    QByteArray fingerprint;
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        appendBytes(fingerprint, 'k', field.key().constData(), field.key().size() * qsizetype{sizeof(QChar)});
        appendFingerprint(fingerprint, *field);
    }
    return fingerprint;
}

} // namespace

KeyedEncoder::KeyedEncoder()
{
    m_objects.append(KeyedArchive::nothing.toString());
}

KeyedEncoder::Reference KeyedEncoder::encode(const QVariant &object)
{
    if (holds<QString>(object)) {
        return encodeString(content<QString>(object));
    }
    if (!object.isValid() || (isPointer(object) && content<const void *>(object) == nullptr)) {
        return {};
    }
    const Identity known = identity(object);
    if (std::get<1>(known) == nullptr) {
        return encodeNew(object);
    }
    const auto found = m_sharedValues.find(known);
    if (found != m_sharedValues.end()) {
        return found->second.second;
    }
    const Reference reference = encodeNew(object);
    m_sharedValues.insert_or_assign(known, std::pair(object, reference));
    return reference;
}

QVariantList KeyedEncoder::encodeReferences(const QVariantList &objects)
{
    QVariantList references;
    references.reserve(objects.size());
    for (const QVariant &object : objects) {
        if (!object.isValid()) {
            refuse("a list, a dictionary or a set holds nothing in the place of a value");
        }
        references.append(QVariant::fromValue(encode(object)));
    }
    return references;
}

KeyedEncoder::Reference KeyedEncoder::encodeInstance(const QStringList &classNames, const WriteFields &writeFields)
{
    const Reference reference = append(KeyedArchive::nothing.toString());
    const QVariantMap fields = writtenFields(classNames, writeFields);
    const QByteArray key = fingerprint(fields);
    const auto known = m_instances.find(key);
    if (known != m_instances.end()) {
        if (m_objects.size() == qsizetype{reference.value} + 1) { // not if an encoder wrote a field twice
            m_objects.removeLast();
        }
        return known->second;
    }
    m_objects[reference.value] = fields;
    m_instances.emplace(key, reference);
    return reference;
}

QByteArray KeyedEncoder::data(const QVariantMap &outermostFields, PropertyList::Format format) const
{
    const QVariantMap archive{{u"$archiver"_s, u"NSKeyedArchiver"_s},
                              {u"$version"_s, KeyedArchive::version},
                              {u"$top"_s, outermostFields},
                              {u"$objects"_s, m_objects}};
    const PropertyList::WriteResult written = PropertyList::write(archive, format);
    if (!written.data) {
        throw InvalidArgumentException("KeyedArchiver: " + written.error.toStdString());
    }
    return *written.data;
}

KeyedEncoder::Identity KeyedEncoder::identity(const QVariant &object)
{
    const int type = object.metaType().id();
    if (isPointer(object)) {
        return {type, content<const void *>(object), nullptr};
    }
    if (holds<QVariantList>(object)) {
        return {type, content<QVariantList>(object).constData(), nullptr};
    }
    if (holds<QVariantMap>(object)) {
        return {type, address(content<QVariantMap>(object)), nullptr};
    }
    if (holds<ObjectSet>(object)) {
        return {type, content<ObjectSet>(object).elements.constData(), nullptr};
    }
    if (holds<OrderedObjectSet>(object)) {
        return {type, content<OrderedObjectSet>(object).elements.constData(), nullptr};
    }
    if (holds<CountedObjectSet>(object)) {
        const auto &set = content<CountedObjectSet>(object);
        return {type, set.elements.constData(), set.counts.constData()};
    }
    if (holds<ObjectDictionary>(object)) {
        const auto &dictionary = content<ObjectDictionary>(object);
        return {type, dictionary.keys.constData(), dictionary.objects.constData()};
    }
    return {};
}

KeyedEncoder::Reference KeyedEncoder::encodeNew(const QVariant &object)
{
    if (holds<KeyedObject>(object)) {
        return copyObject(content<KeyedObject>(object));
    }
    auto encoding = m_encodings.find(object.metaType().id());
    if (encoding == m_encodings.end()) {
        encoding = m_encodings.emplace(object.metaType().id(), keyedEncode(object.metaType())).first;
    }
    if (!encoding->second) {
        return isPlain(object) ? encodePlain(object) : encodeContainer(object);
    }
    if (isPointer(object)) {
        return encodePointer(object, *encoding->second);
    }
    return encodeInstance(encoding->second->classNames,
                          [&](KeyedFieldWriter &writer) { encoding->second->write(object, writer); });
}

KeyedEncoder::Reference KeyedEncoder::encodeString(const QString &string)
{
    const auto known = m_strings.find(string);
    if (known != m_strings.end()) {
        return known->second;
    }
    const auto asObject = [&string](KeyedFieldWriter &writer) {
        writer.encodeString(string, u"NS.string"_s);
    };
    const Reference reference =
        string == KeyedArchive::nothing ? encodeInstance({u"NSString"_s, u"NSObject"_s}, asObject) : append(string);
    m_strings.emplace(string, reference);
    return reference;
}

KeyedEncoder::Reference KeyedEncoder::encodePlain(const QVariant &value)
{
    QByteArray key;
    appendFingerprint(key, value);
    const auto known = m_plainValues.find(key);
    return known != m_plainValues.end() ? known->second : m_plainValues.emplace(key, append(value)).first->second;
}

/// A list of any type that Qt can look into, or a map of one whose keys are strings.
KeyedEncoder::Reference KeyedEncoder::encodeContainer(const QVariant &container)
{
    if (container.canView<QAssociativeIterable>()) {
        const auto entries = container.value<QAssociativeIterable>();
        if (entries.metaContainer().keyMetaType() == QMetaType::fromType<QString>()) {
            return encode(container.toMap());
        }
    } else if (container.canView<QSequentialIterable>()) {
        return encode(container.toList());
    }
    refuse(std::string("a value of type ") + container.typeName() + " cannot be archived");
}

/// What pointers point to may refer to itself, so it is entered before its fields.
KeyedEncoder::Reference KeyedEncoder::encodePointer(const QVariant &object, const KeyedEncode &encoding)
{
    const Reference reference = append(KeyedArchive::nothing.toString());
    const Identity known = identity(object);
    m_sharedValues.insert_or_assign(known, std::pair(object, reference));
    auto forget = qScopeGuard([this, &known] { m_sharedValues.erase(known); });
    m_objects[reference.value] =
        writtenFields(encoding.classNames, [&](KeyedFieldWriter &writer) { encoding.write(object, writer); });
    forget.dismiss();
    return reference;
}

QVariantMap KeyedEncoder::writtenFields(const QStringList &classNames, const WriteFields &writeFields)
{
    if (m_nesting == KeyedUnarchiver::maximumNesting) {
        refuse("more than " + std::to_string(m_nesting) + " values are inside each other");
    }
    ++m_nesting;
    const auto leave = qScopeGuard([this] { --m_nesting; });
    KeyedFieldWriter writer(*this);
    writeFields(writer);
    QVariantMap fields = writer.fields();
    fields.insert(KeyedArchive::classKey.toString(),
                  QVariant::fromValue(classReference(classNames.first(), classNames)));
    return fields;
}

/// Copies the object and all that it refers to, directly or not, as they stand in their archive.
KeyedEncoder::Reference KeyedEncoder::copyObject(const KeyedObject &object)
{
    if (object.isNull()) {
        return {};
    }
    auto forget = qScopeGuard([this] {
        m_copies.clear();
        m_copiesToFill.clear();
        m_copiedValues.clear();
    });
    const Reference reference = reserveCopy(object.m_archive, object.m_index);
    while (!m_copiesToFill.empty()) {
        const auto [source, target] = m_copiesToFill.back();
        m_copiesToFill.pop_back();
        const auto &[archive, index] = source;
        const QVariant &original = archive->object(index);
        m_objects[target.value] =
            holds<QVariantMap>(original) ? copiedFields(content<QVariantMap>(original), index, archive) : original;
    }
    forget.dismiss();
    return reference;
}

KeyedEncoder::Reference KeyedEncoder::reserveCopy(const Archive &archive, quint32 index)
{
    if (index == 0 || index >= archive->objectCount()) {
        return {};
    }
    const std::pair source(archive, index);
    const auto known = m_copies.find(source);
    if (known != m_copies.end()) {
        return known->second;
    }
    const Reference reference = append(KeyedArchive::nothing.toString());
    m_copies.emplace(source, reference);
    m_copiesToFill.emplace_back(source, reference);
    return reference;
}

QVariant KeyedEncoder::copied(const QVariant &value, const Archive &archive)
{
    if (++m_copiedValues[archive] > archive->size()) {
        refuse("an object's archive holds too much for its " + std::to_string(archive->size()) + " bytes");
    }
    if (holds<Reference>(value)) {
        return QVariant::fromValue(reserveCopy(archive, content<Reference>(value).value));
    }
    if (holds<QVariantList>(value)) {
        QVariantList list = value.toList();
        for (QVariant &element : list) {
            element = copied(element, archive);
        }
        return list;
    }
    if (holds<QVariantMap>(value)) {
        QVariantMap map = value.toMap();
        for (QVariant &entry : map) {
            entry = copied(entry, archive);
        }
        return map;
    }
    return value;
}

QVariantMap KeyedEncoder::copiedFields(const QVariantMap &fields, quint32 index, const Archive &archive)
{
    QVariantMap copy;
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        if (field.key() == KeyedArchive::classKey) {
            const KeyedArchive::Class original = archive->classAt(archive->classIndex(index));
            copy.insert(field.key(), QVariant::fromValue(classReference(original.name, original.names)));
        } else {
            copy.insert(field.key(), copied(*field, archive));
        }
    }
    return copy;
}

KeyedEncoder::Reference KeyedEncoder::classReference(const QString &name, const QStringList &names)
{
    const QString key = name + u'\n' + names.join(u'\n');
    const auto known = m_classes.find(key);
    if (known != m_classes.end()) {
        return known->second;
    }
    QVariantMap record{{u"$classname"_s, name}};
    if (!names.isEmpty()) {
        record.insert(u"$classes"_s, QVariantList(names.begin(), names.end()));
    }
    return m_classes.emplace(key, append(record)).first->second;
}

KeyedEncoder::Reference KeyedEncoder::append(const QVariant &object)
{
    m_objects.append(object);
    return {static_cast<quint32>(m_objects.size() - 1)};
}

} // namespace platform
