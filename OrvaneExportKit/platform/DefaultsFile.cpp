#include <OrvaneExportKit/platform/DefaultsFile.h>

#include <OrvaneExportKit/platform/DefaultsLock.h>
#include <OrvaneExportKit/platform/DiskFolder.h>
#include <OrvaneExportKit/platform/FileReading.h>
#include <OrvaneExportKit/platform/FileReplacement.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/PropertyListCheck.h>
#include <OrvaneExportKit/platform/PropertyListError.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QLatin1StringView suffix(".plist");
constexpr QLatin1StringView keptSuffix(".unreadable-");

/// File systems take names up to 255 bytes; what is put behind a domain's name needs some of them.
constexpr qsizetype longestDomainName = 255 - suffix.size() - keptSuffix.size() - 10;

bool isSeparatorOrControl(QChar character)
{
    return character == u'/' || character == u'\\' || character.category() == QChar::Other_Control;
}

bool isDomainName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && name.isValidUtf16() &&
           QFile::encodeName(name).size() <= longestDomainName &&
           std::none_of(name.begin(), name.end(), isSeparatorOrControl);
}

std::filesystem::path systemPath(const QString &path)
{
    return QFileInfo(path).filesystemFilePath();
}

QString reason(const std::error_code &error)
{
    return QString::fromStdString(error.message());
}

void requireFolder(const QString &folder)
{
    if (folder.isEmpty()) {
        throw DefaultsError{u"There is no folder for settings, for the user has no home folder: set the environment "
                            "variable HOME, or name a folder in ORVANE_DEFAULTS_FOLDER."_s};
    }
}

/// `why` goes on to say what to do.
DefaultsError notSaved(const QString &path, const QString &why)
{
    return {u"The settings file %1 was not saved: %2."_s.arg(quoted(path), why)};
}

void makeFolder(const QString &folder)
{
    const std::filesystem::path path = systemPath(folder);
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        return;
    }
    std::filesystem::create_directories(path.parent_path(), error);
    if (!error && std::filesystem::create_directory(path, error)) {
        std::filesystem::permissions(path, std::filesystem::perms::owner_all, error);
    }
    if (error) {
        throw DefaultsError{
            u"The settings folder %1 cannot be made: %2; make it yourself, or make the folder around it "
            "writable, and save again."_s.arg(quoted(folder), reason(error))};
    }
}

} // namespace

DefaultsFile::DefaultsFile(const QString &folder, const QString &domain)
    : m_folder(folder), m_path(folder + u'/' + domain + suffix)
{
    requireFolder(folder);
    if (!isDomainName(domain)) {
        throw DefaultsError{
            u"%1 cannot name a settings domain: use a name like com.example.plain-text, at most %2 bytes "
            "long, without slashes, backslashes and control characters, and with no dot at its start."_s.arg(
                quoted(domain), QString::number(longestDomainName))};
    }
}

QStringList DefaultsFile::domainNames(const QString &folder)
{
    requireFolder(folder);
    QStringList names;
    std::error_code error;
    auto entry = std::filesystem::directory_iterator(systemPath(folder), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const QString file = QFileInfo(entry->path()).fileName();
        const QString name = file.chopped(std::min(suffix.size(), file.size()));
        std::error_code ignored;
        if (file.endsWith(suffix) && isDomainName(name) && entry->is_regular_file(ignored)) {
            names.append(name);
        }
    }
    if (error && error != std::errc::no_such_file_or_directory) {
        throw DefaultsError{u"The settings folder %1 cannot be read: %2; correct this and try again."_s.arg(
            quoted(folder), reason(error))};
    }
    names.sort();
    return names;
}

DomainContents DefaultsFile::read() const
{
    Reading reading = tryRead();
    if (!reading.problem.isEmpty()) {
        throw DefaultsError{
            u"The settings file %1 cannot be read: %2; repair or delete it, else it is kept as %3 when "
            "the settings are saved next."_s.arg(quoted(m_path), reading.problem, quoted(nameToKeep()))};
    }
    return reading.contents;
}

QString DefaultsFile::save(const DomainChange &change) const
{
    makeFolder(m_folder);
    DefaultsLock lock(m_path);
    if (const QString problem = lock.take(); !problem.isEmpty()) {
        throw notSaved(m_path, problem);
    }
    const Reading reading = tryRead();
    QString notice = reading.problem.isEmpty() ? QString() : keepAside(reading.problem);
    if (const DomainContents contents = change.appliedTo(reading.contents)) {
        replace(*contents);
    } else if (reading.contents) {
        remove();
    }
    return notice;
}

void DefaultsFile::requireWritable(const QVariantMap &values) const
{
    try {
        platform::requireWritable(values, PropertyList::Format::Xml);
    } catch (const PropertyListError &error) {
        throw notWritable(error.description);
    }
}

/// Throws where the system fails for a reason that may pass, as a disk error or too many open files: nothing must be
/// concluded from that about the file.
DefaultsFile::Reading DefaultsFile::tryRead() const
{
    const FileReading file = readFile(m_path);
    switch (file.outcome) {
    case FileReading::Outcome::Missing:
        return {};
    case FileReading::Outcome::NoFile:
        return {std::nullopt, u"it is not a file"_s};
    case FileReading::Outcome::Hidden:
        return {std::nullopt, u"its permissions forbid it"_s};
    case FileReading::Outcome::Failed:
        throw notRead(file.problem);
    case FileReading::Outcome::Read:
        break;
    }
    const PropertyList::ReadResult list = PropertyList::read(file.data, PropertyList::XmlUids::AsDictionaries);
    if (!list.value) {
        return {std::nullopt, list.error};
    }
    if (list.value->typeId() != QMetaType::QVariantMap) {
        return {std::nullopt, u"it holds no dictionary"_s};
    }
    return {list.value->toMap(), {}};
}

QString DefaultsFile::keepAside(const QString &problem) const
{
    const QString kept = nameToKeep();
    std::error_code error;
    std::filesystem::rename(systemPath(m_path), systemPath(kept), error);
    if (error) {
        throw notSaved(m_path, u"what is there (%1) cannot be renamed to %2 (%3); move it away and save again"_s.arg(
                                   problem, quoted(kept), reason(error)));
    }
    return u"The settings file %1 could not be read: %2; it is kept as %3, repair it there."_s.arg(
        quoted(m_path), problem, quoted(kept));
}

/// The first free name for what cannot be read. Throws when the system does not tell whether a name is free.
QString DefaultsFile::nameToKeep() const
{
    for (int number = 1;; ++number) {
        QString name = m_path + keptSuffix + QString::number(number);
        std::error_code error;
        switch (std::filesystem::symlink_status(systemPath(name), error).type()) {
        case std::filesystem::file_type::not_found:
            return name;
        case std::filesystem::file_type::none:
            throw notRead(reason(error));
        default:
            break;
        }
    }
}

QByteArray DefaultsFile::serialized(const QVariantMap &contents) const
{
    const PropertyList::WriteResult list = PropertyList::write(contents, PropertyList::Format::Xml);
    if (!list.data) {
        throw notWritable(list.error);
    }
    return *list.data;
}

DefaultsError DefaultsFile::notRead(const QString &why) const
{
    return {u"The settings file %1 cannot be read: %2; correct this and try again."_s.arg(quoted(m_path), why)};
}

DefaultsError DefaultsFile::notWritable(const QString &why) const
{
    return notSaved(m_path, why + u"; give it another value"_s);
}

void DefaultsFile::replace(const QVariantMap &contents) const
{
    FileReplacement file(FileAccess::OwnerAlone); // what a user has set is nobody else's business
    if (file.write(m_path, serialized(contents)) && file.finish()) {
        return;
    }
    const FileFailure failure = file.failure();
    if (failure.isInPlace) {
        throw DefaultsError{
            u"The settings file %1 was saved, but may be lost if the computer stops now: its folder was "
            "not written to disk (%2); correct this and save again."_s.arg(quoted(m_path), failure.reason)};
    }
    throw notSaved(m_path, failure.reason + u"; make room on the disk or the file writable, and save again"_s);
}

void DefaultsFile::remove() const
{
    std::error_code error;
    std::filesystem::remove(systemPath(m_path), error);
    if (error) {
        throw DefaultsError{u"The settings file %1 was not removed: %2; correct this and try again."_s.arg(
            quoted(m_path), reason(error))};
    }
    try {
        DiskFolder::open(m_folder)->flush();
    } catch (const DiskError &failure) {
        throw DefaultsError{
            u"The settings file %1 was removed, but may be back if the computer stops now: its folder was "
            "not written to disk (%2); correct this and try again."_s.arg(quoted(m_path), failure.reason)};
    }
}

} // namespace platform
