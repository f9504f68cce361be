#include <tests/end_to_end/DroppedUser.h>
#include <tests/end_to_end/Files.h>
#include <tests/support/ChildProcess.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QProcessEnvironment>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

constexpr QFileDevice::Permissions everyoneMayRead = QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                                     QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                                     QFileDevice::ReadOther | QFileDevice::ExeOther;

} // namespace

DroppedUser::DroppedUser()
{
    for (const QString &file : kitLibraries + QStringList{hostProgram, plainTextPlugin}) {
        copyInto(m_folder.path(), file);
    }
    makePublic(m_folder.path());
}

HostResult DroppedUser::runHost(const QStringList &arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_LIBRARY_PATH"_s, m_folder.path());
    environment.insert(u"ORVANE_PLUGIN_PATH"_s, m_folder.path());
    environment.insert(u"ORVANE_DEFAULTS_FOLDER"_s, m_folder.filePath(u"defaults"_s));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    process.setChildProcessModifier(support::becomeNobody);
    process.start(m_folder.filePath(u"orvane-host"_s), arguments);
    return finished(process);
}

void makeReadOnly(const QString &folder)
{
    EXPECT_TRUE(QFile::setPermissions(folder, everyoneMayRead));
}

void makePublic(const QString &folder)
{
    constexpr QFileDevice::Permissions permissions = everyoneMayRead | QFileDevice::WriteOwner;
    EXPECT_TRUE(QFile::setPermissions(folder, permissions));
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        EXPECT_TRUE(QFile::setPermissions(entries.next(), permissions));
    }
}

} // namespace end_to_end
