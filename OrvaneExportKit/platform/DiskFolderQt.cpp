// For systems that are not POSIX. QSaveFile does not tell when what it flushed could not be written, and Qt has no way
// to flush a folder.

#include <OrvaneExportKit/platform/DiskFolder.h>

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

namespace platform {

namespace {

constexpr QFile::Permissions ownerMayWrite = QFile::ReadOwner | QFile::WriteOwner;

class QtFile : public PendingFile
{
public:
    explicit QtFile(const QString &path) : m_file(path) {}

    void write(const QByteArray &content, FileAccess access)
    {
        const QFileInfo info(m_file.fileName());
        if (info.exists() && !info.isFile() && !info.isDir()) {
            throw DiskError{QStringLiteral("it is a device or the like, and no file")};
        }
        require(m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        if (access == FileAccess::OwnerAlone) {
            m_file.setPermissions(ownerMayWrite);
        }
        qint64 written = 0;
        while (written < content.size()) {
            const qint64 count = m_file.write(content.constData() + written, content.size() - written);
            require(count > 0);
            written += count;
        }
    }

    void flush() override {}
    void requireFlushed() override {}
    void takePlace() override { require(m_file.commit()); }

private:
    void require(bool succeeded) const
    {
        if (!succeeded) {
            throw DiskError{m_file.errorString(), m_file.error() == QFileDevice::ResourceError};
        }
    }

    QSaveFile m_file;
};

class QtFolder : public DiskFolder
{
public:
    explicit QtFolder(const QString &path) : m_path(path)
    {
        if (!QFileInfo(path).isDir()) {
            throw DiskError{QStringLiteral("its folder is not there")};
        }
    }

    std::unique_ptr<PendingFile> write(const QString &name, const QByteArray &content, FileAccess access) override
    {
        auto file = std::make_unique<QtFile>(m_path + u'/' + name);
        file->write(content, access);
        return file;
    }

    bool flushFileSystem() override { return false; }
    void flush() override {}

private:
    QString m_path;
};

} // namespace

std::unique_ptr<DiskFolder> DiskFolder::open(const QString &path)
{
    return std::make_unique<QtFolder>(path);
}

} // namespace platform
