#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// \file
/// Values found by a path of keys joined by points: "settings.margin.top" is the entry "top" of the dictionary that the
/// object behind the property "settings" keeps under "margin".
///
/// A key asks an object for its Qt property of that name (a dynamic one too), a `KeyValueCoding` object for whatever it
/// keeps under the key, and a dictionary (`QVariantMap`) for its entry. Dictionaries begin where objects end.
///
/// For use on the application's main thread.

namespace platform {

/// An object that answers keys by itself and not by its Qt properties, and that tells observers about changes.
class ORVANE_CORE_EXPORT KeyValueCoding : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~KeyValueCoding() override;

    /// The value under a key; an invalid `QVariant` when there is none.
    virtual QVariant valueForKey(const QString &key) const = 0;

    /// Stores a value under a key, between the two signals.
    virtual void setValue(const QVariant &value, const QString &key) = 0;

Q_SIGNALS:
    void willChangeValueForKey(const QString &key); ///< a value is about to be stored by `setValue`
    void didChangeValueForKey(const QString &key);  ///< it has been stored
};

/// One object on a key path, and the key that it is asked for.
struct KeyPathStep {
    QObject *object; ///< not null
    QString key;     ///< not empty
};

/// The objects that a key path leads through, the first one first; the keys behind the last of them are those of
/// dictionaries. A change of the value at the key path is a change of one of these objects' keys. A path that meets no
/// object where it expects one (a property that holds a null pointer) ends there.
/// Throws as `valueForKeyPath` does.
ORVANE_CORE_EXPORT QList<KeyPathStep> keyPathSteps(QObject *object, const QString &keyPath);

/// The value at a key path; an invalid `QVariant` where an entry or an object on the way is missing.
///
/// Throws `InvalidArgumentException`, naming the key path, when the object is null, a key is empty, a Qt object lacks
/// the property, or a key is asked of a value that has none, such as a number.
///
///     valueForKeyPath(controller, u"settings.margin.top"_s)   // 72
ORVANE_CORE_EXPORT QVariant valueForKeyPath(QObject *object, const QString &keyPath);

/// Stores a value at a key path.
///
/// An entry of a dictionary goes back through the object that holds the outermost dictionary, so a settings object
/// tells its observers about the outermost key. Dictionaries that are missing on the way are made; an invalid
/// `QVariant` takes an entry out of a dictionary.
///
/// Throws `InvalidArgumentException` as `valueForKeyPath` does, for a property that is read-only or takes no such
/// value, and where an object on the way is missing.
///
///     setValueForKeyPath(controller, 36, u"settings.margin.top"_s);
ORVANE_CORE_EXPORT void setValueForKeyPath(QObject *object, const QVariant &value, const QString &keyPath);

} // namespace platform
