#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

#include <memory>

namespace platform {

class KeyedEncoder;
class KeyedFieldWriter;

/// Writes keyed archives that other programs read.
///
///     const QByteArray data = KeyedArchiver::archivedDataWithRootObject(u"Chapter 1"_s);
///
/// Written are the values that `KeyedUnarchiver` reads, each as the class that it is read from; further every integer
/// type of C++, `float`, `QPoint`, `QSize`, `QRect`, `QMargins` (as those with reals), `QDate` (as its start in UTC),
/// lists and arrays of any type that Qt can look into (`QStringList`, `QList<double>`), maps of such with strings as
/// keys (`QMap<QString, QString>`), and the values of registered classes. A `KeyedObject` is written as it stands in
/// the archive that it comes from, with all objects that it refers to.
///
/// Equal values of the same type are written once and referred to, so that archives stay small; so is what a pointer of
/// a registered class points to, which may refer back to itself.
///
/// Everything else throws `InvalidArgumentException`: types that are not known, invalid values inside lists and maps,
/// more than `KeyedUnarchiver::maximumNesting` values inside each other, and, in XML, strings that the format cannot
/// hold (see `PropertyList`). A `KeyedObject` that refers to something malformed, in a field that nobody reads, throws
/// `ArchiveException`.
///
/// For use on any thread, with objects of its own. No archived class may be registered or removed meanwhile.
class ORVANE_CORE_EXPORT KeyedArchiver final : public Coder
{
public:
    /// The archive of a value; invalid is no object.
    static QByteArray archivedDataWithRootObject(const QVariant &object,
                                                 PropertyList::Format format = PropertyList::Format::Binary);

    /// Begins an archive whose outermost fields are written through the coder's operations.
    explicit KeyedArchiver(PropertyList::Format format = PropertyList::Format::Binary);
    ~KeyedArchiver() override;

    /// The archive of all that was encoded so far. What a failed encoding had written already is in it, too.
    QByteArray encodedData() const;

    bool allowsKeyedCoding() const override;

    void encodeObject(const QVariant &object, const QString &key) override;
    void encodeFloat(float value, const QString &key) override;
    void encodeDouble(double value, const QString &key) override;
    void encodeInt64(qint64 value, const QString &key) override;
    void encodeBool(bool value, const QString &key) override;
    void encodeBytes(const QByteArray &bytes, const QString &key) override;
    void encodeObject(const QVariant &object) override;
    void encodeValueOfObjCType(const char *type, const void *address) override;

private:
    std::unique_ptr<KeyedEncoder> m_encoder;
    std::unique_ptr<KeyedFieldWriter> m_top;
    PropertyList::Format m_format;
};

} // namespace platform
