#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtCore/QVariant>

/// \file
/// Values that keyed archives hold and that neither C++ nor Qt has a type of its own for. Elements and keys are values
/// as `KeyedUnarchiver` lists them, in the order of the archive.
///
/// For use on any thread, with objects of its own.

namespace platform {

/// A set: each element once. Elements count as equal when they are of the same type and hold the same, also inside
/// each other; objects of unknown classes only when they are the same object.
struct ObjectSet {
    QVariantList elements; ///< none is twice in it

    /// Whether each element of one set is in the other.
    ORVANE_CORE_EXPORT friend bool operator==(const ObjectSet &a, const ObjectSet &b);
};

/// A set whose order counts.
struct OrderedObjectSet {
    QVariantList elements; ///< in the order of the set, none twice

    /// Whether the same elements stand in the same order.
    ORVANE_CORE_EXPORT friend bool operator==(const OrderedObjectSet &a, const OrderedObjectSet &b);
};

/// A set that knows how often it holds each element: `counts[i]` times `elements[i]`.
struct CountedObjectSet {
    QVariantList elements; ///< each once
    QList<quint64> counts; ///< as many as there are elements

    /// Whether each element is in the other set, and as often.
    ORVANE_CORE_EXPORT friend bool operator==(const CountedObjectSet &a, const CountedObjectSet &b);
};

/// A dictionary with at least one key that is not a string: `keys[i]` stands for `objects[i]`. A dictionary whose keys
/// are all strings is a `QVariantMap`.
struct ObjectDictionary {
    QVariantList keys;    ///< each once
    QVariantList objects; ///< as many as there are keys

    /// Whether both hold the same keys with the same objects.
    ORVANE_CORE_EXPORT friend bool operator==(const ObjectDictionary &a, const ObjectDictionary &b);
};

/// The way through nested lists: an index a level, outermost first.
struct IndexPath {
    QList<quint64> indices; ///< the first is that in the outermost list

    friend bool operator==(const IndexPath &, const IndexPath &) = default;
};

/// A URL that stands relative to a base, or that `QUrl` spells otherwise than the archive does: it turns the letters of
/// hosts into small ones, for one. `QVariant::toUrl` answers the URL of either type, `QVariant::toString` that of this
/// one as the archive spells it.
///
///     const ArchivedUrl link{u"Item:F1B2C3D4"_s, {}};
///     link.url().toString();   // "item:F1B2C3D4"
///     link.string;             // "Item:F1B2C3D4"
struct ORVANE_CORE_EXPORT ArchivedUrl {
    QString string; ///< as the archive spells it, without the base
    QVariant base;  ///< a `QUrl` or an `ArchivedUrl`; invalid where the string is the whole URL

    /// The URL as Qt spells it, resolved against its base.
    QUrl url() const;

    friend bool operator==(const ArchivedUrl &, const ArchivedUrl &) = default;
};

} // namespace platform
