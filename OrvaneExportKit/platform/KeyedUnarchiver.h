#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Coder.h>

#include <QtCore/QByteArrayView>
#include <QtCore/QVariant>

#include <memory>

namespace platform {

class KeyedArchive;
class KeyedDecoder;
class KeyedFieldReader;

/// Reads keyed archives, binary or XML, as other programs write them.
///
///     const QVariant object = KeyedUnarchiver::unarchiveObjectWithData(data);
///
/// The classes known by themselves, with their mutable variants, and what they become:
///
/// | class                                   | becomes                                                       |
/// |-----------------------------------------|---------------------------------------------------------------|
/// | `NSString`                              | `QString`                                                     |
/// | `NSNumber`, `NSDecimalNumber`           | `bool`, `qint64`, above its range `quint64`, or `double`      |
/// | `NSNull`                                | `std::nullptr_t`                                              |
/// | `NSData`                                | `QByteArray`                                                  |
/// | `NSDate`                                | `QDateTime` in UTC, to the millisecond                        |
/// | `NSArray`                               | `QVariantList`                                                |
/// | `NSDictionary`                          | `QVariantMap`; `ObjectDictionary` if not all keys are strings |
/// | `NSSet`, `NSOrderedSet`                 | `ObjectSet`, `OrderedObjectSet`                               |
/// | `NSCountedSet`                          | `CountedObjectSet`                                            |
/// | `NSURL`                                 | `QUrl`; `ArchivedUrl` if that spells it otherwise             |
/// | `NSUUID`                                | `QUuid`                                                       |
/// | `NSValue` of a point, size or rectangle | `QPointF`, `QSizeF`, `QRectF`                                 |
/// | `NSValue` of a range or edge insets     | `Range`, `QMarginsF`                                          |
/// | `NSIndexSet`, `NSIndexPath`             | `RangeList`, `IndexPath`                                      |
/// | `NSAttributedString`, `NSTextStorage`   | `AttributedString`                                            |
///
/// A registered class (`ArchivedClassRegistration`) becomes what its decoder makes of it; the library with the windows
/// registers colours, fonts and paragraph styles. An object of any other class becomes a `KeyedObject`, which keeps
/// the class and all fields. So does one that is well-formed but holds what the type above cannot: a URL that is none
/// to `QUrl`, a colour of an unknown space, a font without a name, an alignment that is none. Views become
/// `KeyedObject`s, too; `windowing::unarchivedView` makes a view of one. No object (nil) becomes an invalid `QVariant`.
///
/// Of elements of a set that are equal, and of the same type, one is kept; a counted set without counts counts them.
/// Decimals become the integer that they are, or else the nearest `double`.
///
/// An object that several others refer to is decoded once, and the lists, maps and texts made of it share their memory.
/// A circle of references is kept where it leads through a `KeyedObject`; others cannot be held by values and throw.
///
/// Everything that is wrong with an archive throws an `ArchiveException` that names the place and what is wrong there
/// ("object 7 (NSArray): `NS.objects` refers to object 99; the archive has 12"). Refused are property lists
/// that are malformed or no keyed archive of the known version, references to nothing, broken class entries, missing or
/// wrong fields, sizes that do not fit each other, elements and keys that are no object, circles as above, and more
/// than `maximumNesting` objects inside each other. The memory that decoding takes follows the length of the data:
/// refused are archives whose objects say over and over again that here, too, stands what stands there, and texts with
/// attributes that could hardly be compared (dictionaries of more than a million values, expanded).
///
/// For use on any thread, with objects of its own. No archived class may be registered or removed meanwhile.
class ORVANE_CORE_EXPORT KeyedUnarchiver final : public Coder
{
public:
    /// How many objects may be inside each other through lists, dictionaries and registered classes.
    static constexpr int maximumNesting = 512;

    /// The root object; invalid when the archive says that its root is no object.
    static QVariant unarchiveObjectWithData(QByteArrayView data);

    /// Opens an archive whose outermost fields are read through the coder's operations.
    explicit KeyedUnarchiver(QByteArrayView data);
    ~KeyedUnarchiver() override;

    bool allowsKeyedCoding() const override;

    bool containsValueForKey(const QString &key) const override;
    QVariant decodeObjectForKey(const QString &key) override;
    float decodeFloatForKey(const QString &key) override;
    double decodeDoubleForKey(const QString &key) override;
    qint64 decodeInt64ForKey(const QString &key) override;
    bool decodeBoolForKey(const QString &key) override;
    QByteArray decodeBytesForKey(const QString &key) override;
    QVariant decodeObject() override;
    void decodeValueOfObjCType(const char *type, void *address) override;

private:
    std::shared_ptr<const KeyedArchive> m_archive;
    std::unique_ptr<KeyedDecoder> m_decoder;
    std::unique_ptr<KeyedFieldReader> m_top;
};

} // namespace platform
