#include "Commands.h"

#include "InputOutput.h"
#include "ProgramError.h"

#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QStringList>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using platform::UserDefaults;

namespace defaults {

namespace {

/// One domain of the user defaults, with what goes wrong as errors of the program.
class Domain
{
public:
    Domain(UserDefaults &userDefaults, const QString &name) : m_userDefaults(userDefaults), m_name(name)
    {
        m_userDefaults.setApplicationDomain(name);
    }

    QVariantMap contents() const;
    QVariant value(const QString &key) const;
    void setValue(const QString &key, const QVariant &value);
    void removeValue(const QString &key);
    void replace(const QVariantMap &contents);
    void remove();

private:
    [[noreturn]] void failBecauseNotSet() const;
    void requireSaved(bool isSaved) const;

    UserDefaults &m_userDefaults;
    QString m_name;
};

QVariantMap Domain::contents() const
{
    QString error;
    auto contents = m_userDefaults.persistentDomainForName(m_name, &error);
    if (contents) {
        return *contents;
    }
    if (error.isEmpty()) {
        failBecauseNotSet();
    }
    throw ProgramError(ExitCode::Failure, error);
}

QVariant Domain::value(const QString &key) const
{
    QVariant value = contents().value(key);
    if (!value.isValid()) {
        throw ProgramError(
            ExitCode::NotSet,
            u"The domain '%1' has no key '%2': 'orvane-defaults read' shows all it has."_s.arg(m_name, key));
    }
    return value;
}

void Domain::setValue(const QString &key, const QVariant &value)
{
    requireSaved(m_userDefaults.setObject(value, key));
}

void Domain::removeValue(const QString &key)
{
    value(key);
    requireSaved(m_userDefaults.removeObjectForKey(key));
}

void Domain::replace(const QVariantMap &contents)
{
    requireSaved(m_userDefaults.setPersistentDomain(contents, m_name));
}

void Domain::remove()
{
    QString error;
    if (!m_userDefaults.persistentDomainForName(m_name, &error) && error.isEmpty()) {
        failBecauseNotSet();
    }
    requireSaved(m_userDefaults.removePersistentDomainForName(m_name));
}

void Domain::failBecauseNotSet() const
{
    throw ProgramError(ExitCode::NotSet,
                       u"There is no domain '%1': 'orvane-defaults domains' lists all."_s.arg(m_name));
}

/// What was met on the way to a change that was saved is worth a message, else the reason to stop.
void Domain::requireSaved(bool isSaved) const
{
    if (!isSaved) {
        throw ProgramError(ExitCode::Failure, m_userDefaults.lastError());
    }
    if (!m_userDefaults.lastError().isEmpty()) {
        printMessage(m_userDefaults.lastError());
    }
}

QByteArray line(const QString &text)
{
    return text.toUtf8() + '\n';
}

void listDomains(const UserDefaults &userDefaults, ListSeparator separator)
{
    QString error;
    const QStringList names = userDefaults.persistentDomainNames(&error);
    if (!error.isEmpty()) {
        throw ProgramError(ExitCode::Failure, error);
    }
    printList(names, separator);
}

QVariantMap importedDomain(const QString &file)
{
    const PropertyList::ReadResult list = PropertyList::read(readFile(file), PropertyList::XmlUids::AsDictionaries);
    if (!list.value) {
        throw ProgramError(ExitCode::Failure,
                           u"The file '%1' is not a property list: %2; correct it there."_s.arg(file, list.error));
    }
    if (list.value->typeId() != QMetaType::QVariantMap) {
        throw ProgramError(
            ExitCode::Failure,
            u"The file '%1' holds no dictionary of keys and values: name a file that 'orvane-defaults export' wrote."_s
                .arg(file));
    }
    return list.value->toMap();
}

} // namespace

void runCommand(const Request &request, UserDefaults &userDefaults)
{
    const QStringList &operands = request.operands;
    Domain domain(userDefaults, request.domain);
    switch (request.command) {
    case Command::Domains:
        listDomains(userDefaults, request.separator);
        break;
    case Command::Read:
        printResult(
            line(textFromValue(operands.isEmpty() ? QVariant(domain.contents()) : domain.value(operands.first()))));
        break;
    case Command::Write:
        domain.setValue(operands[0], valueFromText(operands[1], request.type));
        break;
    case Command::Delete:
        operands.isEmpty() ? domain.remove() : domain.removeValue(operands.first());
        break;
    case Command::Export:
        writeFile(operands.value(0, u"-"_s), line(textFromValue(domain.contents())));
        break;
    case Command::Import:
        domain.replace(importedDomain(operands.first()));
        break;
    }
}

} // namespace defaults
