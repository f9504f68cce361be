#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>
#include <optional>

namespace platform {

/// The settings of a user, kept from one run to the next: domains, each a dictionary of property-list values under a
/// name such as "com.example.plain-text".
///
///     UserDefaults &defaults = UserDefaults::standardUserDefaults();
///     if (!defaults.setPersistentDomain({{u"language"_s, u"de"_s}}, u"com.example.plain-text"_s)) {
///         warn(defaults.lastError());
///     }
///
/// A domain is an XML property list `<domain>.plist` in the folder, readable by its owner alone, and `lastError` names
/// it. It is replaced as a whole: whatever happens to a program that saves, the file holds the old or the new settings.
/// When a function that changes a domain returns true, the change is on disk. A dictionary whose only key is `CF$UID`
/// is one like any other here (`PropertyList::XmlUids`).
///
/// Programs may use a domain at the same time. Every call reads the file anew, and two that save take turns; one whose
/// turn does not come within a few seconds reports the program that it waited for.
///
/// What could not be saved is not lost: the object answers from it, and tries again whenever its domain is changed or
/// `synchronize` is called. It is gone when the object is destroyed, at the end of the program.
///
/// A file that cannot be read as settings is never overwritten. Reading reports it and finds no domain; saving first
/// renames it to `<domain>.plist.unreadable-<n>` with the first free number, and says so in `lastError`.
///
/// A domain name that holds a slash, a backslash or a control character, starts with a dot, is empty or longer than a
/// file name can be is refused: nothing is read or written, and `lastError` says why.
class ORVANE_CORE_EXPORT UserDefaults
{
public:
    /// The defaults that programs and plug-ins share. Their folder is named by the environment variable
    /// ORVANE_DEFAULTS_FOLDER or, without it, is "orvane-export-kit" in the user's configuration folder.
    static UserDefaults &standardUserDefaults();

    /// The domain that every application looks into after its own.
    static QString globalDomain() { return QStringLiteral("GlobalDomain"); }

    /// Defaults in a folder of their own, which is made when something is saved.
    explicit UserDefaults(const QString &folder);
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;
    ~UserDefaults();

    /// The folder that holds the domains.
    QString folder() const;

    /// The name of the application's domain: that of the application (`QCoreApplication::applicationName`) unless
    /// another was set.
    QString applicationDomain() const;
    void setApplicationDomain(const QString &name);

    /// The value in the application's domain, else in the global domain, else among the registered defaults, else an
    /// invalid `QVariant`.
    QVariant objectForKey(const QString &key) const;

    /// All keys with the values that `objectForKey` finds for them.
    QVariantMap dictionaryRepresentation() const;

    /// Adds values for keys that are found nowhere else; those of a key that is registered already are replaced. They
    /// are never saved.
    void registerDefaults(const QVariantMap &defaults);

    /// Sets one key of the application's domain and leaves its other keys as they are on disk. False when it could not
    /// be saved, and when the key is empty or the value not a property-list value, which changes nothing.
    bool setObject(const QVariant &value, const QString &key);

    /// Removes one key of the application's domain. False when that could not be saved.
    bool removeObjectForKey(const QString &key);

    /// What the domain holds; nothing when there is no such domain, or when it cannot be read, and then `lastError` is
    /// not empty.
    std::optional<QVariantMap> persistentDomainForName(const QString &name) const;

    /// Replaces the domain, all its keys. False when it could not be saved, and when one of the values is not a
    /// property-list value, which changes nothing.
    bool setPersistentDomain(const QVariantMap &domain, const QString &name);

    /// Removes the domain and its file; fine when there is none. False when that could not be saved.
    bool removePersistentDomainForName(const QString &name);

    /// The names of all domains, sorted; also of those that cannot be read.
    QStringList persistentDomainNames() const;

    /// Saves what could not be saved before. True when all that was set is on disk.
    bool synchronize();

    /// What the last call met, as one English sentence that says what to do; empty when all went well.
    QString lastError() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace platform
