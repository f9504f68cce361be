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
/// A domain is an XML property list `<domain>.plist` in the folder, readable by its owner alone, and errors name it. It
/// is replaced as a whole: whatever happens to a program that saves, the file holds the old or the new settings. When a
/// function that changes a domain returns true, the change is on disk. A dictionary whose only key is `CF$UID` is one
/// like any other here (`PropertyList::XmlUids`).
///
/// Programs, and threads with objects of their own, may use a domain at the same time. Every call reads the file anew,
/// and those that save take turns: a lock file beside the settings is locked by the kernel for the program that saves,
/// so that one that is killed keeps nobody waiting and one that is stopped keeps its turn, whatever clocks say. A
/// program whose turn does not come within eight seconds reports who is in its way. On systems and file systems without
/// such locks, one that is stopped for more than two seconds while it saves may lose its turn, and with it a change.
///
/// What could not be saved is not lost: the object answers from it, and tries again whenever its domain is changed or
/// `synchronize` is called. It is gone when the object is destroyed, at the end of the program.
///
/// What never can be saved is refused and changes nothing: a value that is no property-list value, a string with U+0000
/// or half a surrogate pair, an empty key, an unusable domain. The refusal stays known, and `synchronize` answers false
/// and names it, until the same key or domain is set to something else or removed.
///
/// A file that cannot be read as settings is never overwritten. Reading reports it and finds no domain; saving first
/// renames it to `<domain>.plist.unreadable-<n>` with the first free number, and says so in `lastError`. That happens
/// to a file that is no property list with a dictionary, and to one that its permissions hide. Where the system fails
/// to read, as a disk or a network does for a moment, nothing is changed and the error is given.
///
/// A domain name that holds a slash, a backslash or a control character, starts with a dot, is empty or longer than a
/// file name can be is refused: nothing is read or written.
///
/// An object belongs to one thread, `standardUserDefaults` to the main thread: nothing in it is locked, so one thread
/// that changes it while others use it damages it. The reading functions, which are `const` and give their errors to
/// the caller alone, change nothing in it; several threads may call them while no thread changes the object.
class ORVANE_CORE_EXPORT UserDefaults
{
public:
    /// The defaults that programs and plug-ins share. Their folder is named by the environment variable
    /// ORVANE_DEFAULTS_FOLDER or, without it, is "orvane-export-kit" in the user's configuration folder. A user without
    /// a home folder (no HOME and no XDG_CONFIG_HOME) has none: nothing is saved, and the errors say so.
    static UserDefaults &standardUserDefaults();

    /// The domain that every application looks into after its own.
    static QString globalDomain() { return QStringLiteral("GlobalDomain"); }

    /// Defaults in a folder of their own, which is made when something is saved. With an empty name there is no folder.
    explicit UserDefaults(const QString &folder);
    UserDefaults(const UserDefaults &) = delete;
    UserDefaults &operator=(const UserDefaults &) = delete;
    ~UserDefaults();

    /// The folder that holds the domains; empty when there is none.
    QString folder() const;

    /// The name of the application's domain: that of the application (`QCoreApplication::applicationName`) unless
    /// another was set.
    QString applicationDomain() const;
    void setApplicationDomain(const QString &name);

    /// The value in the application's domain, else in the global domain, else among the registered defaults, else an
    /// invalid `QVariant`. A domain that cannot be read is passed over; `error`, which may be null, receives why, and
    /// an empty text when all went well.
    QVariant objectForKey(const QString &key, QString *error = nullptr) const;

    /// All keys with the values that `objectForKey` finds for them, and the same `error`.
    QVariantMap dictionaryRepresentation(QString *error = nullptr) const;

    /// Adds values for keys that are found nowhere else; those of a key that is registered already are replaced. They
    /// are never saved.
    void registerDefaults(const QVariantMap &defaults);

    /// Sets one key of the application's domain and leaves its other keys as they are on disk. False when it could not
    /// be saved, and when the key is empty or the value not a property-list value, which changes nothing.
    [[nodiscard]] bool setObject(const QVariant &value, const QString &key);

    /// Removes one key of the application's domain. False when that could not be saved.
    [[nodiscard]] bool removeObjectForKey(const QString &key);

    /// What the domain holds; nothing when there is no such domain, or when it cannot be read, and then `error`, which
    /// may be null, receives why; else an empty text.
    std::optional<QVariantMap> persistentDomainForName(const QString &name, QString *error = nullptr) const;

    /// Replaces the domain, all its keys. False when it could not be saved, and when one of the values is not a
    /// property-list value, which changes nothing.
    [[nodiscard]] bool setPersistentDomain(const QVariantMap &domain, const QString &name);

    /// Removes the domain and its file; fine when there is none. False when that could not be saved.
    [[nodiscard]] bool removePersistentDomainForName(const QString &name);

    /// The names of all domains, sorted; also of those that cannot be read. When the folder cannot be read, `error`,
    /// which may be null, receives why; else an empty text.
    QStringList persistentDomainNames(QString *error = nullptr) const;

    /// Saves what could not be saved before. True when all that was set is on disk; false also while a refused change
    /// is known.
    [[nodiscard]] bool synchronize();

    /// What the last call that was to change or save something met, as one English sentence that says what to do; empty
    /// when all went well. A file that was kept aside on the way is named here too, though the call returned true.
    QString lastError() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace platform
