#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QVariant>

/// \file
/// Values that keyed archives hold and that neither C++ nor Qt has a type of its own for. Elements and keys are values
/// as `KeyedUnarchiver` lists them, in the order of the archive.
///
/// For use on any thread, with objects of its own.

namespace platform {

/// A set: each element once.
struct ObjectSet {
    QVariantList elements; ///< none is twice in it

    friend bool operator==(const ObjectSet &, const ObjectSet &) = default;
};

/// A set whose order counts.
struct OrderedObjectSet {
    QVariantList elements; ///< in the order of the set

    friend bool operator==(const OrderedObjectSet &, const OrderedObjectSet &) = default;
};

/// A set that knows how often it holds each element: `counts[i]` times `elements[i]`.
struct CountedObjectSet {
    QVariantList elements; ///< each once
    QList<quint64> counts; ///< as many as there are elements

    friend bool operator==(const CountedObjectSet &, const CountedObjectSet &) = default;
};

/// A dictionary with at least one key that is not a string: `keys[i]` stands for `objects[i]`. A dictionary whose keys
/// are all strings is a `QVariantMap`.
struct ObjectDictionary {
    QVariantList keys;    ///< each once
    QVariantList objects; ///< as many as there are keys

    friend bool operator==(const ObjectDictionary &, const ObjectDictionary &) = default;
};

/// The way through nested lists: an index a level, outermost first.
struct IndexPath {
    QList<quint64> indices; ///< the first is that in the outermost list

    friend bool operator==(const IndexPath &, const IndexPath &) = default;
};

} // namespace platform
