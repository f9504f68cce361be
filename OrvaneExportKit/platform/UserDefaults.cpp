#include <OrvaneExportKit/platform/UserDefaults.h>

#include <OrvaneExportKit/platform/DefaultsFile.h>
#include <OrvaneExportKit/platform/DomainChange.h>
#include <OrvaneExportKit/platform/RefusedChanges.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QStandardPaths>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

/// Whether the configuration folder that Qt names is the user's. Without HOME, Qt takes the root folder for the home.
bool hasConfigurationFolder()
{
    return !qEnvironmentVariableIsEmpty("HOME") || QDir::homePath() != QDir::rootPath() ||
           QDir::isAbsolutePath(qEnvironmentVariable("XDG_CONFIG_HOME"));
}

/// Empty when there is none.
QString standardFolder()
{
    QString named = qEnvironmentVariable("ORVANE_DEFAULTS_FOLDER");
    if (!named.isEmpty() || !hasConfigurationFolder()) {
        return named;
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/orvane-export-kit"_s;
}

/// Keeps the first thing that a call met.
void report(QString &error, const QString &sentence)
{
    if (error.isEmpty()) {
        error = sentence;
    }
}

/// What a reading function gives besides its result.
void giveTo(QString *receiver, const QString &error)
{
    if (receiver != nullptr) {
        *receiver = error;
    }
}

} // namespace

// The reading functions change nothing in here.
struct UserDefaults::State {
    QString folder; ///< empty when there is none
    QString applicationDomain;
    QVariantMap registered;
    QMap<QString, DomainChange> unsaved; ///< by the name of the domain
    RefusedChanges refused;
    QString lastError;

    /// What the domain holds, with what is not on disk yet; reports a file that cannot be read.
    DomainContents contents(const QString &domain, QString &error) const;

    /// Adds a change and saves it, unless the values that it brings are refused; a removal brings none.
    bool change(const QString &domain, const DomainChange &change, const std::optional<QVariantMap> &newValues);

    bool refuse(const QString &domain, const DomainChange &change, const QString &sentence);

    /// Tries to save what is not on disk yet.
    bool save(const QString &domain);
};

DomainContents UserDefaults::State::contents(const QString &domain, QString &error) const
{
    DomainContents saved;
    try {
        saved = DefaultsFile(folder, domain).read();
    } catch (const DefaultsError &thrown) {
        report(error, thrown.description);
    }
    return unsaved.value(domain).appliedTo(saved);
}

bool UserDefaults::State::change(const QString &domain, const DomainChange &change,
                                 const std::optional<QVariantMap> &newValues)
{
    lastError.clear();
    refused.replaceBy(domain, change);
    try {
        DefaultsFile(folder, domain).requireWritable(newValues.value_or(QVariantMap()));
    } catch (const DefaultsError &error) {
        if (newValues) {
            return refuse(domain, change, error.description);
        }
        report(lastError, error.description); // what was to be removed cannot be there
        return false;
    }
    unsaved[domain].append(change);
    return save(domain);
}

bool UserDefaults::State::refuse(const QString &domain, const DomainChange &change, const QString &sentence)
{
    refused.add(domain, change, sentence);
    lastError = sentence;
    return false;
}

bool UserDefaults::State::save(const QString &domain)
{
    try {
        report(lastError, DefaultsFile(folder, domain).save(unsaved.value(domain)));
        unsaved.remove(domain);
        return true;
    } catch (const DefaultsError &error) {
        report(lastError, error.description);
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
    if (!folder.isEmpty()) {
        m_state->folder = QDir(folder).absolutePath();
    }
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

QVariant UserDefaults::objectForKey(const QString &key, QString *error) const
{
    return dictionaryRepresentation(error).value(key);
}

QVariantMap UserDefaults::dictionaryRepresentation(QString *error) const
{
    QString met;
    QVariantMap values = m_state->registered;
    values.insert(m_state->contents(globalDomain(), met).value_or(QVariantMap()));
    if (const QString own = applicationDomain(); !own.isEmpty()) {
        values.insert(m_state->contents(own, met).value_or(QVariantMap()));
    }
    giveTo(error, met);
    return values;
}

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    m_state->registered.insert(defaults);
}

bool UserDefaults::setObject(const QVariant &value, const QString &key)
{
    const auto change = DomainChange::entry(key, value);
    if (key.isEmpty()) {
        return m_state->refuse(applicationDomain(), change,
                               u"A setting without a key cannot be saved: give it a key."_s);
    }
    return m_state->change(applicationDomain(), change, QVariantMap{{key, value}});
}

bool UserDefaults::removeObjectForKey(const QString &key)
{
    return m_state->change(applicationDomain(), DomainChange::entry(key, {}), std::nullopt);
}

std::optional<QVariantMap> UserDefaults::persistentDomainForName(const QString &name, QString *error) const
{
    QString met;
    auto contents = m_state->contents(name, met);
    giveTo(error, met);
    return contents;
}

bool UserDefaults::setPersistentDomain(const QVariantMap &domain, const QString &name)
{
    return m_state->change(name, DomainChange::replacement(domain), domain);
}

bool UserDefaults::removePersistentDomainForName(const QString &name)
{
    return m_state->change(name, DomainChange::replacement(std::nullopt), std::nullopt);
}

QStringList UserDefaults::persistentDomainNames(QString *error) const
{
    QString met;
    QStringList names;
    try {
        names = DefaultsFile::domainNames(m_state->folder);
    } catch (const DefaultsError &thrown) {
        report(met, thrown.description);
    }
    for (const QString &unsaved : m_state->unsaved.keys()) {
        names.removeAll(unsaved);
        if (m_state->contents(unsaved, met)) {
            names.append(unsaved);
        }
    }
    names.sort();
    giveTo(error, met);
    return names;
}

bool UserDefaults::synchronize()
{
    m_state->lastError.clear();
    for (const QString &domain : m_state->unsaved.keys()) {
        m_state->save(domain);
    }
    report(m_state->lastError, m_state->refused.sentence());
    return m_state->unsaved.isEmpty() && m_state->refused.isEmpty();
}

QString UserDefaults::lastError() const
{
    return m_state->lastError;
}

} // namespace platform
