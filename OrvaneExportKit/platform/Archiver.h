#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

#include <memory>

/// \file
/// The non-keyed archive, in which settings keep values that are not property-list values: fonts, colours, sizes and
/// every other type that Qt knows how to stream, also inside lists and maps. For the eyes of this kit alone; other
/// programs read and write keyed archives.
///
/// For use on any thread, with objects of its own.

namespace platform {

/// Writes a non-keyed archive: fields without names, one behind the other.
///
///     Archiver archiver;
///     pageView->encodeWithCoder(archiver);
///     const QByteArray data = archiver.archivedData();
///
/// Writing throws `InvalidArgumentException` when a value, or one inside it, is of a type without stream operators or
/// of another container of `QVariant` than a list or a map; of a type that Qt cannot read from data that may be
/// hostile (`QEasingCurve`, `QIcon`, `QPainterPath`, `QPolygon`, `QPolygonF`, `QRegion`, `QTextFormat`); when lists and
/// maps are nested more than 512 deep; when one value takes more than 2147483647 bytes, where a list or a map that
/// stands at several places is written at each; and when a value inside a list or a map is nothing.
class ORVANE_CORE_EXPORT Archiver final : public Coder
{
public:
    /// The archive of one value. Throws like `encodeObject`, also when the value is nothing.
    ///
    ///     const QByteArray archive = Archiver::archivedDataWithRootObject(QSize(3, 4));
    static QByteArray archivedDataWithRootObject(const QVariant &object);

    Archiver();
    ~Archiver() override;

    /// The archive of all that was encoded so far.
    QByteArray archivedData() const;

    bool allowsKeyedCoding() const override;
    using Coder::encodeObject;
    void encodeObject(const QVariant &object) override;
    void encodeValueOfObjCType(const char *type, const void *address) override;

private:
    class Writer;
    std::unique_ptr<Writer> m_writer;
};

/// Reads a non-keyed archive, field by field in the order of writing.
class ORVANE_CORE_EXPORT Unarchiver final : public Coder
{
public:
    /// The value of an archive of one value. Data that is no such archive, is cut short, goes on behind its end, claims
    /// sizes that it does not have or holds a type that this program does not know or does not archive gives an invalid
    /// `QVariant`.
    static QVariant unarchiveObjectWithData(const QByteArray &data);

    /// The same, and why there is no value, in a sentence: "Unarchiver: the data is not a whole archive". Empty when
    /// there is one.
    static QVariant unarchiveObjectWithData(const QByteArray &data, QString &error);

    /// Opens an archive. Throws `ArchiveException` when the data is none; so do the operations that find another field
    /// than they are asked for, none any more, or a broken one.
    explicit Unarchiver(const QByteArray &data);
    ~Unarchiver() override;

    bool allowsKeyedCoding() const override;
    QVariant decodeObject() override;
    void decodeValueOfObjCType(const char *type, void *address) override;

private:
    class Reader;
    std::unique_ptr<Reader> m_reader;
};

} // namespace platform
