#include <OrvaneExportKit/platform/DefaultsFile.h>

#include <OrvaneExportKit/platform/DiskFolder.h>
#include <OrvaneExportKit/platform/FileReplacement.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/PropertyListCheck.h>
#include <OrvaneExportKit/platform/PropertyListError.h>

#include <QtCore/QDateTime>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

constexpr QLatin1StringView suffix(".plist");
constexpr QLatin1StringView keptSuffix(".unreadable-");

/// File systems take names up to 255 bytes; what is put behind a domain's name needs some of them.
constexpr qsizetype longestDomainName = 255 - suffix.size() - keptSuffix.size() - 10;

constexpr auto longestWaitForLock = 8s;
constexpr auto pauseBetweenTries = 1ms;

/// No program needs a lock for so long.
constexpr auto abandonedLockAge = 2s;

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

/// The text in quotation marks, with control characters escaped.
QString quoted(const QString &text)
{
    QString shown;
    QDebug(&shown).nospace() << text;
    return shown;
}

/// `why` goes on to say what to do.
DefaultsError notSaved(const QString &path, const QString &why)
{
    return {u"The settings file %1 was not saved: %2."_s.arg(quoted(path), why)};
}

void makeFolder(const QString &folder)
{
    const QFileInfo info(folder);
    if (info.isDir()) {
        return;
    }
    QDir().mkpath(info.path());
    QDir().mkdir(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!QFileInfo(folder).isDir()) { // another program may have made it first
        throw DefaultsError{u"The settings folder %1 cannot be made: make it yourself, or make the folder around it "
                            "writable, and save again."_s.arg(quoted(folder))};
    }
}

QString lockOwner(const QLockFile &lock)
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!lock.getLockInfo(&process, &host, &program)) {
        return u"another program"_s;
    }
    return u"the program %1 (process %2)"_s.arg(quoted(program), QString::number(process));
}

/// Why the lock could not be taken, and what to do.
QString lockProblem(const QLockFile &lock)
{
    switch (lock.error()) {
    case QLockFile::LockFailedError:
        return u"%1 keeps it locked; wait for that program or end it, and save again"_s.arg(lockOwner(lock));
    case QLockFile::PermissionError:
        return u"its folder is not writable; make it writable and save again"_s;
    default:
        return u"no lock file can be written beside it; make room on the disk and save again"_s;
    }
}

/// Whether the lock was not made just now; one from the future was made before the clock was set back.
bool isOld(const QLockFile &lock)
{
    const QDateTime madeAt = QFileInfo(lock.fileName()).lastModified();
    const auto age = std::chrono::milliseconds(madeAt.msecsTo(QDateTime::currentDateTime()));
    return madeAt.isValid() && (age > abandonedLockAge || age < -abandonedLockAge);
}

/// Waits for the lock. The waiting of `QLockFile` itself has pauses that soon get longer than a second, and would never
/// get a turn beside a program that saves all the time.
void take(QLockFile &lock, const QString &path)
{
    const QDeadlineTimer deadline(longestWaitForLock);
    while (!lock.tryLock()) {
        if (lock.error() != QLockFile::LockFailedError || deadline.hasExpired()) {
            throw notSaved(path, lockProblem(lock));
        }
        // The lock of a program that was killed is taken over at once, unless it was killed before it had written into
        // the lock whose it is, or while it took over another. One that is still in use is not removed by this.
        if (isOld(lock)) {
            lock.removeStaleLockFile();
        }
        std::this_thread::sleep_for(pauseBetweenTries);
    }
}

} // namespace

DefaultsFile::DefaultsFile(const QString &folder, const QString &domain)
    : m_folder(folder), m_path(folder + u'/' + domain + suffix)
{
    if (!isDomainName(domain)) {
        throw DefaultsError{
            u"%1 cannot name a settings domain: use a name like com.example.plain-text, at most %2 bytes "
            "long, without slashes, backslashes and control characters, and with no dot at its start."_s.arg(
                quoted(domain), QString::number(longestDomainName))};
    }
}

QStringList DefaultsFile::domainNames(const QString &folder)
{
    const QDir dir(folder);
    if (dir.exists() && !dir.isReadable()) {
        throw DefaultsError{u"The settings folder %1 cannot be read: make it readable."_s.arg(quoted(folder))};
    }
    QStringList names;
    for (const QString &file : dir.entryList({u'*' + suffix}, QDir::Files | QDir::CaseSensitive)) {
        const QString name = file.chopped(suffix.size());
        if (isDomainName(name)) {
            names.append(name);
        }
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
    QLockFile lock(m_path + u".lock"_s);
    take(lock, m_path);

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

/// Throws where reading fails for a reason that may pass, as a disk error or too many open files: nothing must be
/// concluded from that about the file.
DefaultsFile::Reading DefaultsFile::tryRead() const
{
    const auto failure = [this](const QString &reason) {
        return DefaultsError{
            u"The settings file %1 cannot be read: %2; correct this and try again."_s.arg(quoted(m_path), reason)};
    };
    const QFileInfo info(m_path);
    std::error_code error;
    switch (std::filesystem::status(info.filesystemFilePath(), error).type()) {
    case std::filesystem::file_type::not_found:
        return {};
    case std::filesystem::file_type::none:
        throw failure(QString::fromStdString(error.message()));
    case std::filesystem::file_type::regular:
        break;
    default:
        return {std::nullopt, u"it is not a file"_s};
    }
    if (!info.isReadable()) {
        return {std::nullopt, u"its permissions forbid it"_s};
    }
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw failure(file.errorString());
    }
    const QByteArray data = file.readAll();
    if (file.error() != QFile::NoError) {
        throw failure(file.errorString());
    }
    const PropertyList::ReadResult list = PropertyList::read(data, PropertyList::XmlUids::AsDictionaries);
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
    QFile file(m_path);
    if (!file.rename(kept)) {
        throw notSaved(m_path, u"what is there (%1) cannot be renamed to %2 (%3); move it away and save again"_s.arg(
                                   problem, quoted(kept), file.errorString()));
    }
    return u"The settings file %1 could not be read: %2; it is kept as %3, repair it there."_s.arg(
        quoted(m_path), problem, quoted(kept));
}

/// The first free name for what cannot be read.
QString DefaultsFile::nameToKeep() const
{
    for (int number = 1;; ++number) {
        QString name = m_path + keptSuffix + QString::number(number);
        if (!QFileInfo::exists(name) && !QFileInfo(name).isSymLink()) {
            return name;
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

DefaultsError DefaultsFile::notWritable(const QString &reason) const
{
    return notSaved(m_path, reason + u"; give it another value"_s);
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
    QFile file(m_path);
    if (!file.remove()) {
        throw DefaultsError{u"The settings file %1 was not removed: %2; correct this and try again."_s.arg(
            quoted(m_path), file.errorString())};
    }
    try {
        DiskFolder::open(m_folder)->flush();
    } catch (const DiskError &error) {
        throw DefaultsError{
            u"The settings file %1 was removed, but may be back if the computer stops now: its folder was "
            "not written to disk (%2); correct this and try again."_s.arg(quoted(m_path), error.reason)};
    }
}

} // namespace platform
