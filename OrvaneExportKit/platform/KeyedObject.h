#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <memory>

namespace platform {

class Coder;
class KeyedArchive;

/// An object of a keyed archive whose class is not known here: its class names and its fields, as they stand.
///
///     const auto note = KeyedUnarchiver::unarchiveObjectWithData(data).value<KeyedObject>();
///     if (note.className() == u"Note") {
///         show(note.value(u"title"_s).toString());
///     }
///
/// A small value that refers to the archive, which it keeps in memory; the fields are decoded when they are asked for.
/// Objects may refer to each other in circles. Two are equal when they are the same object of the same archive.
///
/// For use on any thread, with objects of its own.
class ORVANE_CORE_EXPORT KeyedObject
{
public:
    /// No object: without name and fields.
    KeyedObject();
    KeyedObject(const KeyedObject &);
    KeyedObject &operator=(const KeyedObject &);
    ~KeyedObject();

    /// Whether this is no object.
    bool isNull() const { return m_archive == nullptr; }

    /// The name of the class; empty for no object.
    QString className() const;

    /// The name of the class, then those of its superclasses, nearest first, as far as the archive holds them.
    QStringList classNames() const;

    /// The names of all fields as they stand in the archive, sorted. Archives write fields without a name as `$0`, `$1`
    /// ..., and double the `$` that a name begins with.
    QStringList keys() const;

    /// Whether the object has a field of this name, also one that refers to no object.
    bool containsValueForKey(const QString &key) const;

    /// The value of a field: an object as `KeyedUnarchiver` decodes it, a plain value that stands in the field, or a
    /// list or map of such. Invalid for a field that is missing or refers to no object.
    ///
    /// Never fails for objects that `KeyedUnarchiver` handed out as the root or inside it: it has decoded all of them
    /// once before it returns. The exception is a decoder that throws later though it did not at first.
    QVariant value(const QString &key) const;

    /// Lets a class that reads itself from archives read the fields of this object, by their names without the `$` that
    /// archives put before others:
    ///
    ///     std::unique_ptr<KZPageView> view;
    ///     object.decodeFields([&view](Coder &coder) { view = KZPageView::initWithCoder(coder); });
    ///
    /// The coder is valid during the call. Throws what `decode` throws, `ArchiveException` when what it reads is
    /// malformed, and `InvalidArgumentException` when this is no object.
    void decodeFields(const std::function<void(Coder &coder)> &decode) const;

    friend bool operator==(const KeyedObject &, const KeyedObject &) = default;

    /// The same for equal objects.
    friend std::size_t qHash(const KeyedObject &object, std::size_t seed = 0) noexcept
    {
        return qHashMulti(seed, object.m_archive.get(), object.m_index);
    }

private:
    friend class KeyedDecoder;
    friend class KeyedEncoder;
    KeyedObject(std::shared_ptr<const KeyedArchive> archive, quint32 index);

    std::shared_ptr<const KeyedArchive> m_archive;
    quint32 m_index = 0;
};

} // namespace platform
