#include <OrvaneExportKit/platform/ArchivedClass.h>

#include <OrvaneExportKit/platform/ArchivedClasses.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QList>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

using Class = std::shared_ptr<const ArchivedClass>;

/// The latest last. A function, because plug-ins register theirs while they are being loaded.
QList<Class> &registeredClasses()
{
    static QList<Class> classes;
    return classes;
}

template <typename Predicate>
Class latest(Predicate matches)
{
    const QList<Class> &classes = registeredClasses();
    const auto found = std::find_if(classes.rbegin(), classes.rend(), matches);
    return found == classes.rend() ? nullptr : *found;
}

Class checked(ArchivedClass archivedClass)
{
    if (archivedClass.classNames.isEmpty() || archivedClass.classNames.contains(QString())) {
        throw InvalidArgumentException("ArchivedClassRegistration: a class name is missing or empty");
    }
    if (!archivedClass.type.isValid()) {
        throw InvalidArgumentException("ArchivedClassRegistration: the type of " +
                                       archivedClass.classNames.first().toStdString() + " is not valid");
    }
    if (archivedClass.decode && archivedClass.type.flags().testFlag(QMetaType::IsPointer)) {
        throw InvalidArgumentException("ArchivedClassRegistration: " + archivedClass.classNames.first().toStdString() +
                                       " is decoded as a pointer, to an object that nobody would own");
    }
    return std::make_shared<const ArchivedClass>(std::move(archivedClass));
}

} // namespace

Class archivedClassNamed(const QString &className)
{
    return latest([&className](const Class &candidate) {
        return candidate->decode && candidate->classNames.first() == className;
    });
}

Class archivedClassOfType(QMetaType type)
{
    return latest([type](const Class &candidate) { return candidate->encode && candidate->type == type; });
}

ArchivedClassRegistration::ArchivedClassRegistration(ArchivedClass archivedClass)
    : m_class(checked(std::move(archivedClass)))
{
    registeredClasses().append(m_class);
}

ArchivedClassRegistration::~ArchivedClassRegistration()
{
    registeredClasses().removeOne(m_class);
}

} // namespace platform
