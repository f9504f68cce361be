#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Coder.h>

#include <QtCore/QMetaType>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <functional>
#include <memory>

namespace platform {

/// How the values of a C++ type stand in keyed archives.
struct ArchivedClass {
    /// The name of the class in archives, then its superclasses, nearest first.
    QStringList classNames;

    /// The C++ type of the values. For a class that is only written, a pointer type is fine; the archive does not keep
    /// what it points to alive.
    QMetaType type;

    /// Writes the fields of a value of that type; empty for a class that is only read.
    std::function<void(const QVariant &object, Coder &coder)> encode;

    /// Makes a value from its fields; empty for a class that is only written. An invalid value leaves the object a
    /// `KeyedObject`, with all its fields. Values own what they hold: no pointers, but a `std::shared_ptr` will do. An
    /// object that is more than a value, such as a view, is left a `KeyedObject`, of which a program that wants it
    /// makes it (`KeyedObject::decodeFields`, `windowing::unarchivedView`).
    std::function<QVariant(Coder &coder)> decode;
};

/// Makes a class known to keyed archives for as long as the object lives. A static object in a plug-in registers the
/// plug-in's class when the library is loaded, and takes it back when it is unloaded:
///
///     const platform::ArchivedClassRegistration margins({
///         {u"HtmlMargins"_s, u"NSObject"_s},
///         QMetaType::fromType<Margins>(),
///         [](const QVariant &margins, Coder &coder) { coder.encodeFloat(margins.value<Margins>().top, u"top"_s); },
///         [](Coder &coder) { return QVariant::fromValue(Margins{coder.decodeFloatForKey(u"top"_s)}); },
///     });
///
/// A later registration of a name or a type stands before the earlier ones and before the classes that keyed archives
/// know by themselves. An object that refers to itself through its fields cannot be made by a registered class; reading
/// it throws `ArchiveException`. For use on the application's main thread.
///
/// Throws `InvalidArgumentException` when there is no class name, an empty one, no valid type, or a pointer type with a
/// decoder.
class ORVANE_CORE_EXPORT ArchivedClassRegistration
{
public:
    /// Registers the class.
    explicit ArchivedClassRegistration(ArchivedClass archivedClass);
    ArchivedClassRegistration(const ArchivedClassRegistration &) = delete;
    ArchivedClassRegistration &operator=(const ArchivedClassRegistration &) = delete;
    ~ArchivedClassRegistration();

private:
    std::shared_ptr<const ArchivedClass> m_class;
};

} // namespace platform
