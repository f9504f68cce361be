#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace platform {

/// Property lists: settings and other small data in the XML and the binary format, as other programs write and read
/// them too.
///
///     const auto written = PropertyList::write(QVariantMap{{u"paper"_s, u"A4"_s}}, PropertyList::Format::Xml);
///     const auto read = PropertyList::read(*written.data);
///     if (!read.value) {
///         warn(read.error);   // "line 12, column 3: `<intger>` is not a property-list element"
///     }
///
/// | kind       | written from                                      | read as                                       |
/// |------------|---------------------------------------------------|-----------------------------------------------|
/// | string     | `QString`                                         | `QString`                                     |
/// | integer    | every integer type of C++ up to 64 bits           | `qint64`, above its range `quint64`           |
/// | real       | `float`, `double`, infinities and NaN             | `double`                                      |
/// | boolean    | `bool`                                            | `bool`                                        |
/// | date       | a valid `QDateTime` in any time zone              | `QDateTime` in UTC                            |
/// | data       | `QByteArray`                                      | `QByteArray`                                  |
/// | array      | `QVariantList`, `QStringList`                     | `QVariantList`; so is a set in a binary list  |
/// | dictionary | `QVariantMap`, `QVariantHash`                     | `QVariantMap`                                 |
/// | UID        | `PropertyList::Uid`                               | `PropertyList::Uid`                           |
///
/// Reals come back exactly; a `float` comes back as the `double` of the same value. Dates keep their milliseconds in
/// the binary format and lose everything below a second in XML. Dictionaries are written in the order of their keys,
/// so equal values give equal bytes. Control characters stand in XML as they are, except for U+000D, which is written
/// as a reference so that no reader turns it into a line feed. In XML a dictionary whose only key is `CF$UID`, with an
/// integer, is the written form of a UID and is read as one, unless the reader asks for dictionaries (`XmlUids`).
///
/// Errors are values, one English sentence that begins with the place: line and column (in characters) of an XML list,
/// the byte of a binary one, and, on writing, the keys and indices that lead to the value.
///
/// For use on any thread, with objects of its own.
struct ORVANE_CORE_EXPORT PropertyList {
    /// The two formats of files.
    enum class Format {
        Xml,
        Binary,
    };

    /// A reference into the object table of a keyed archive.
    struct Uid {
        quint32 value = 0; ///< the index in the table

        friend bool operator==(Uid, Uid) = default;
    };

    /// What an XML dictionary whose only key is `CF$UID`, with an integer, is read as.
    enum class XmlUids {
        AsUids,         ///< as a `Uid`, whose number has to be one: what keyed archives mean
        AsDictionaries, ///< as the dictionary that it is everywhere else: settings, whatever their keys
    };

    /// How many arrays and dictionaries may stand inside each other, on reading and on writing.
    static constexpr int maximumNesting = 512;

    /// What reading gives: a value or an error.
    struct ReadResult {
        std::optional<QVariant> value; ///< empty when the data is not a property list
        Format format = Format::Xml;   ///< the format found, or the one that the error was met in
        QString error;                 ///< empty when there is a value
    };

    /// What writing gives: data or an error.
    struct WriteResult {
        std::optional<QByteArray> data; ///< empty when the value cannot be written
        QString error;                  ///< empty when there is data
    };

    /// Reads a property list of either format. The memory that this takes follows the length of the data, never a count
    /// that stands in it; values that a binary list refers to more than once are shared.
    ///
    /// Refused, beside what is malformed: deeper nesting than `maximumNesting`, XML with a document type of its own
    /// (so that no entity can expand), binary objects that overlap or hold themselves, the null of binary lists, and
    /// dates more than 292 million years away.
    static ReadResult read(QByteArrayView data, XmlUids xmlUids = XmlUids::AsUids);

    /// Writes a value in the given format.
    ///
    /// Refused: null values and types outside the table ("styles[2].font: a value of type QFont is not a property-list
    /// value"), deeper nesting than `maximumNesting`, values that together would take more than a gibibyte (a few small
    /// containers that share each other can expand to that), and, in XML alone, strings and keys with U+0000 or half a
    /// surrogate pair.
    static WriteResult write(const QVariant &value, Format format);
};

} // namespace platform
