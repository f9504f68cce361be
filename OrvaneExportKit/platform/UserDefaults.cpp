#include <OrvaneExportKit/platform/UserDefaults.h>

#include <OrvaneExportKit/platform/DefaultsFile.h>
#include <OrvaneExportKit/platform/DomainChange.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QStandardPaths>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

QString standardFolder()
{
    const QString named = qEnvironmentVariable("ORVANE_DEFAULTS_FOLDER");
    return named.isEmpty()
               ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/orvane-export-kit"_s
               : named;
}

} // namespace

struct UserDefaults::State {
    QString folder;
    QString applicationDomain;
    QVariantMap registered;
    QMap<QString, DomainChange> unsaved; ///< by the name of the domain
    QString lastError;

    /// Keeps the first thing that a call met.
    void report(const QString &sentence)
    {
        if (lastError.isEmpty()) {
            lastError = sentence;
        }
    }

    /// What the domain holds, with what is not on disk yet; reports a file that cannot be read.
    DomainContents contents(const QString &domain);

    /// Adds a change and saves it, unless the new values that it brings are refused.
    bool change(const QString &domain, const DomainChange &change, const QVariantMap &newValues);

    /// Tries to save what is not on disk yet.
    bool save(const QString &domain);
};

DomainContents UserDefaults::State::contents(const QString &domain)
{
    DomainContents saved;
    try {
        saved = DefaultsFile(folder, domain).read();
    } catch (const DefaultsError &error) {
        report(error.description);
    }
    return unsaved.value(domain).appliedTo(saved);
}

bool UserDefaults::State::change(const QString &domain, const DomainChange &change, const QVariantMap &newValues)
{
    lastError.clear();
    try {
        DefaultsFile(folder, domain).requireWritable(newValues);
    } catch (const DefaultsError &error) {
        report(error.description);
        return false;
    }
    unsaved[domain].append(change);
    return save(domain);
}

bool UserDefaults::State::save(const QString &domain)
{
    try {
        report(DefaultsFile(folder, domain).save(unsaved.value(domain)));
        unsaved.remove(domain);
        return true;
    } catch (const DefaultsError &error) {
        report(error.description);
        return false;
    }
}

UserDefaults &UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults(standardFolder());
    return defaults;
}

UserDefaults::UserDefaults(const QString &folder) : m_state(std::make_unique<State>())
{
    m_state->folder = QDir(folder).absolutePath();
}

UserDefaults::~UserDefaults() = default;

QString UserDefaults::folder() const
{
    return m_state->folder;
}

QString UserDefaults::applicationDomain() const
{
    return m_state->applicationDomain.isEmpty() ? QCoreApplication::applicationName() : m_state->applicationDomain;
}

void UserDefaults::setApplicationDomain(const QString &name)
{
    m_state->applicationDomain = name;
}

QVariant UserDefaults::objectForKey(const QString &key) const
{
    return dictionaryRepresentation().value(key);
}

QVariantMap UserDefaults::dictionaryRepresentation() const
{
    m_state->lastError.clear();
    QVariantMap values = m_state->registered;
    values.insert(m_state->contents(globalDomain()).value_or(QVariantMap()));
    if (const QString own = applicationDomain(); !own.isEmpty()) {
        values.insert(m_state->contents(own).value_or(QVariantMap()));
    }
    return values;
}

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    m_state->registered.insert(defaults);
}

bool UserDefaults::setObject(const QVariant &value, const QString &key)
{
    if (key.isEmpty()) {
        m_state->lastError = u"A setting without a key cannot be saved: give it a key."_s;
        return false;
    }
    return m_state->change(applicationDomain(), DomainChange::entry(key, value), {{key, value}});
}

bool UserDefaults::removeObjectForKey(const QString &key)
{
    return m_state->change(applicationDomain(), DomainChange::entry(key, {}), {});
}

std::optional<QVariantMap> UserDefaults::persistentDomainForName(const QString &name) const
{
    m_state->lastError.clear();
    return m_state->contents(name);
}

bool UserDefaults::setPersistentDomain(const QVariantMap &domain, const QString &name)
{
    return m_state->change(name, DomainChange::replacement(domain), domain);
}

bool UserDefaults::removePersistentDomainForName(const QString &name)
{
    return m_state->change(name, DomainChange::replacement(std::nullopt), {});
}

QStringList UserDefaults::persistentDomainNames() const
{
    m_state->lastError.clear();
    QStringList names;
    try {
        names = DefaultsFile::domainNames(m_state->folder);
    } catch (const DefaultsError &error) {
        m_state->report(error.description);
    }
    for (const QString &unsaved : m_state->unsaved.keys()) {
        names.removeAll(unsaved);
        if (m_state->contents(unsaved)) {
            names.append(unsaved);
        }
    }
    names.sort();
    return names;
}

bool UserDefaults::synchronize()
{
    m_state->lastError.clear();
    for (const QString &domain : m_state->unsaved.keys()) {
        m_state->save(domain);
    }
    return m_state->unsaved.isEmpty();
}

QString UserDefaults::lastError() const
{
    return m_state->lastError;
}

} // namespace platform
