#pragma once

#include <OrvaneExportKit/platform/KeyedArchive.h>
#include <OrvaneExportKit/platform/KeyedClasses.h>
#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <map>
#include <memory>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace platform {

class KeyedFieldWriter;
class KeyedObject;

/// Builds the table of objects of a keyed archive.
class KeyedEncoder
{
public:
    using Reference = PropertyList::Uid;
    using WriteFields = std::function<void(KeyedFieldWriter &)>;

    KeyedEncoder();

    /// The reference to a value, which is entered if it is not there yet. Throws `InvalidArgumentException` for one
    /// that cannot be archived.
    Reference encode(const QVariant &object);

    /// The references to values, none of which may be invalid.
    QVariantList encodeReferences(const QVariantList &objects);

    /// The reference to an object of a class; of those with the same class and fields there is one.
    Reference encodeInstance(const QStringList &classNames, const WriteFields &writeFields);

    /// The whole archive with these outermost fields.
    QByteArray data(const QVariantMap &outermostFields, PropertyList::Format format) const;

private:
    /// What tells apart values that share their memory: the type, and the addresses of the content.
    using Identity = std::tuple<int, const void *, const void *>;
    using Archive = std::shared_ptr<const KeyedArchive>;

    static Identity identity(const QVariant &object);
    Reference encodeNew(const QVariant &object);
    Reference encodeString(const QString &string);
    Reference encodePlain(const QVariant &value);
    Reference encodeContainer(const QVariant &container);
    Reference encodePointer(const QVariant &object, const KeyedEncode &encoding);
    QVariantMap writtenFields(const QStringList &classNames, const WriteFields &writeFields);

    Reference copyObject(const KeyedObject &object);
    Reference reserveCopy(const Archive &archive, quint32 index);
    QVariant copied(const QVariant &value, const Archive &archive);
    QVariantMap copiedFields(const QVariantMap &fields, quint32 index, const Archive &archive);

    Reference classReference(const QString &name, const QStringList &names);
    Reference append(const QVariant &object);

    QVariantList m_objects;
    // Not in a QHash, which ends the program when there is no memory for it to grow.
    std::unordered_map<QString, Reference> m_strings;
    std::unordered_map<QByteArray, Reference> m_plainValues; ///< by the property list of the value
    std::unordered_map<QByteArray, Reference> m_instances;   ///< by the property list of the fields
    std::unordered_map<QString, Reference> m_classes;        ///< by all names
    std::unordered_map<int, std::optional<KeyedEncode>> m_encodings;
    /// The values are kept, so that no other takes their addresses.
    std::map<Identity, std::pair<QVariant, Reference>> m_sharedValues;
    std::map<std::pair<Archive, quint32>, Reference> m_copies;
    std::vector<std::pair<std::pair<Archive, quint32>, Reference>> m_copiesToFill;
    std::map<Archive, quint64> m_copiedValues; ///< how many of each
    int m_nesting = 0;
};

} // namespace platform
