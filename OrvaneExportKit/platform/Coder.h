#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace platform {

/// The place that an object writes its fields to, or reads them from: an archive, keyed or not.
///
/// A keyed archive (`KeyedArchiver`, `KeyedUnarchiver`) has a name for every field. In the other kind (`Archiver`,
/// `Unarchiver`) the fields have no names and must be read in the order in which they were written.
///
///     void Margins::encodeWithCoder(platform::Coder &coder) const
///     {
///         if (coder.allowsKeyedCoding()) {
///             coder.encodeFloat(top, u"top"_s);
///         } else {
///             coder.encodeValueOfObjCType("f", &top);
///         }
///     }
///
/// Objects are values as `KeyedArchiver` and `Archiver` list them; an invalid `QVariant` stands for no object.
///
/// An operation that the coder does not serve (reading from an archive that is being written, names in an archive
/// without them) throws `UnrecognisedOperationException`. Reading throws `ArchiveException` when the archive holds
/// something else than is asked for; writing throws `InvalidArgumentException` for a value that cannot be archived.
///
/// For use on any thread, with objects of its own.
class ORVANE_CORE_EXPORT Coder
{
public:
    Coder() = default;
    Coder(const Coder &) = delete;
    Coder &operator=(const Coder &) = delete;
    virtual ~Coder();

    /// Whether fields have names.
    virtual bool allowsKeyedCoding() const = 0;

    /// \name Fields with names
    /// A name is used once an object. Reading may ask for the fields in any order, and for each as often as it likes;
    /// one that is missing reads as no object, 0, false or no bytes. Every number serves every numeric reading,
    /// converted as C++ does, and held to the ends of the range asked for; booleans count as 0 and 1.
    /// @{
    virtual void encodeObject(const QVariant &object, const QString &key);
    virtual void encodeFloat(float value, const QString &key);
    virtual void encodeDouble(double value, const QString &key);
    virtual void encodeInt64(qint64 value, const QString &key);
    virtual void encodeBool(bool value, const QString &key);
    virtual void encodeBytes(const QByteArray &bytes, const QString &key);
    virtual bool containsValueForKey(const QString &key) const;
    virtual QVariant decodeObjectForKey(const QString &key);
    virtual float decodeFloatForKey(const QString &key);
    virtual double decodeDoubleForKey(const QString &key);
    virtual qint64 decodeInt64ForKey(const QString &key);
    virtual bool decodeBoolForKey(const QString &key);
    virtual QByteArray decodeBytesForKey(const QString &key);
    /// @}

    /// \name Fields without names
    /// Read in the order of writing, each with the same type code; also served by keyed archives.
    ///
    /// The type codes: `c` `s` `i` `q` signed integers of 8, 16, 32 and 64 bits, `C` `S` `I` `Q` the unsigned ones,
    /// `f` a 32-bit and `d` a 64-bit float, `B` a boolean. `address` is that of a variable of exactly this type, and no
    /// more than its bytes are read or written. Another code throws `InvalidArgumentException`.
    /// @{
    virtual void encodeObject(const QVariant &object);
    virtual QVariant decodeObject();
    virtual void encodeValueOfObjCType(const char *type, const void *address);
    virtual void decodeValueOfObjCType(const char *type, void *address);
    /// @}
};

} // namespace platform
