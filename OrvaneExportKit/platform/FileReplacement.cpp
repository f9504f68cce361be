#include <OrvaneExportKit/platform/FileReplacement.h>

#include <OrvaneExportKit/platform/DiskFolder.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFileInfo>

#include <chrono>
#include <map>
#include <utility>
#include <vector>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

/// A program may have a thousand files open, often no more.
constexpr std::size_t mostWaitingFiles = 512;
constexpr qsizetype mostWaitingBytes = qsizetype(64) * 1024 * 1024;

/// Fewer files are flushed one by one, for flushing their file system takes all with it that other programs have
/// written.
constexpr std::size_t fewestFlushedTogether = 16;

/// Each has a file open, too.
constexpr std::size_t mostFolders = 32;

/// Files that take long to make come one by one, so that little is lost if the program is killed.
constexpr std::chrono::milliseconds longestWait(200);

/// More links than these are a circle to the system, too.
constexpr int mostLinks = 40;

struct WaitingFile {
    QString path; ///< as it was given
    DiskFolder *folder = nullptr;
    std::unique_ptr<PendingFile> file;
};

using WaitingFiles = std::vector<WaitingFile>;

/// The file that is meant, behind symbolic links.
QFileInfo target(const QString &path)
{
    if (path.contains(QChar::Null)) {
        throw DiskError{u"its name holds a null character"_s};
    }
    QFileInfo info(path);
    for (int links = 0; info.isSymLink(); ++links) {
        if (links == mostLinks) {
            throw DiskError{u"its symbolic links lead in a circle"_s};
        }
        info.setFile(info.symLinkTarget());
    }
    if (info.fileName().isEmpty()) {
        throw DiskError{u"its path names no file"_s};
    }
    return info;
}

/// What `FileReplacement` does, out of the sight of those who link the library.
struct FileGroup {
    explicit FileGroup(FileAccess fileAccess) : access(fileAccess) {}

    bool write(const QString &path, const QByteArray &content);
    bool finish();
    bool failed(const QString &path, const DiskError &error);

    FileAccess access;
    std::map<QString, std::unique_ptr<DiskFolder>> folders;
    WaitingFiles waiting; // behind the folders, which must outlive them
    qsizetype waitingBytes = 0;
    QDeadlineTimer end{longestWait};
    QStringList replaced;
    FileFailure failure;

private:
    DiskFolder &folder(const QString &path);
    void add(const QString &path, const QByteArray &content);
    bool isFull() const;
    bool flushFileSystems(const WaitingFiles &files) const;
    std::size_t flush(const WaitingFiles &files);
    std::size_t place(const WaitingFiles &files, std::size_t count);
    bool flushFolders(const WaitingFiles &files, std::size_t count);
    std::size_t countUpToFailure(const WaitingFiles &files, void (PendingFile::*operation)());
};

bool FileGroup::failed(const QString &path, const DiskError &error)
{
    failure = {path, error.reason, false};
    return false;
}

DiskFolder &FileGroup::folder(const QString &path)
{
    if (waiting.empty() && folders.size() >= mostFolders) {
        folders.clear();
    }
    std::unique_ptr<DiskFolder> &folder = folders[path];
    if (!folder) {
        folder = DiskFolder::open(path);
    }
    return *folder;
}

void FileGroup::add(const QString &path, const QByteArray &content)
{
    const QFileInfo info = target(path);
    DiskFolder &folder = this->folder(info.path());
    waiting.push_back({path, &folder, folder.write(info.fileName(), content, access)});
    waitingBytes += content.size();
}

bool FileGroup::isFull() const
{
    return waiting.size() >= mostWaitingFiles || waitingBytes >= mostWaitingBytes || folders.size() >= mostFolders ||
           end.hasExpired();
}

bool FileGroup::write(const QString &path, const QByteArray &content)
{
    try {
        try {
            add(path, content);
        } catch (const DiskError &error) {
            if (!error.lacksHandles || waiting.empty()) {
                throw;
            }
            if (!finish()) {
                return false;
            }
            add(path, content);
        }
    } catch (const DiskError &error) {
        return failed(path, error);
    }
    return !isFull() || finish();
}

bool FileGroup::flushFileSystems(const WaitingFiles &files) const
{
    DiskFolder *flushed = nullptr;
    for (const WaitingFile &file : files) {
        if (file.folder != flushed && !file.folder->flushFileSystem()) {
            return false;
        }
        flushed = file.folder;
    }
    return true;
}

/// How many files the operation succeeds with until it fails with one.
std::size_t FileGroup::countUpToFailure(const WaitingFiles &files, void (PendingFile::*operation)())
{
    for (std::size_t index = 0; index < files.size(); ++index) {
        try {
            (*files[index].file.*operation)();
        } catch (const DiskError &error) {
            failed(files[index].path, error);
            return index;
        }
    }
    return files.size();
}

/// How many of the files are on disk, from the first one.
std::size_t FileGroup::flush(const WaitingFiles &files)
{
    try {
        const bool areFlushed = files.size() >= fewestFlushedTogether && flushFileSystems(files);
        return countUpToFailure(files, areFlushed ? &PendingFile::requireFlushed : &PendingFile::flush);
    } catch (const DiskError &error) {
        // None can be trusted, for the system does not tell with each file what became of it.
        if (countUpToFailure(files, &PendingFile::requireFlushed) == files.size()) {
            failed(files.front().path, error);
        }
        return 0;
    }
}

/// How many of the first `count` files have taken their places.
std::size_t FileGroup::place(const WaitingFiles &files, std::size_t count)
{
    replaced.reserve(replaced.size() + static_cast<qsizetype>(count)); // no file takes its place unnoticed
    for (std::size_t index = 0; index < count; ++index) {
        try {
            files[index].file->takePlace();
        } catch (const DiskError &error) {
            failed(files[index].path, error);
            return index;
        }
        replaced.append(files[index].path);
    }
    return count;
}

bool FileGroup::flushFolders(const WaitingFiles &files, std::size_t count)
{
    DiskFolder *flushed = nullptr;
    for (std::size_t index = 0; index < count; ++index) {
        DiskFolder *folder = files[index].folder;
        try {
            if (folder != flushed) {
                folder->flush();
            }
        } catch (const DiskError &error) {
            failed(files[index].path, error);
            failure.isInPlace = true;
            return false;
        }
        flushed = folder;
    }
    return true;
}

bool FileGroup::finish()
{
    const WaitingFiles files = std::exchange(waiting, {});
    waitingBytes = 0;
    const std::size_t placed = place(files, flush(files));
    end.setRemainingTime(longestWait);
    return flushFolders(files, placed) && placed == files.size();
}

} // namespace

struct FileReplacement::State : FileGroup {
    using FileGroup::FileGroup;
};

FileReplacement::FileReplacement(FileAccess access) : m_state(std::make_unique<State>(access))
{
}

FileReplacement::~FileReplacement() = default;

bool FileReplacement::write(const QString &path, const QByteArray &content)
{
    return m_state->write(path, content);
}

bool FileReplacement::finish()
{
    return m_state->finish();
}

QStringList FileReplacement::replaced() const
{
    return m_state->replaced;
}

FileFailure FileReplacement::failure() const
{
    return m_state->failure;
}

} // namespace platform
