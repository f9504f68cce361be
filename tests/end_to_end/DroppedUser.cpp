#include <tests/end_to_end/DroppedUser.h>
#include <tests/end_to_end/Files.h>

#include <QtCore/QFile>
#include <QtCore/QProcessEnvironment>

#include <grp.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

constexpr QFileDevice::Permissions everyoneMayRead = QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                                     QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                                     QFileDevice::ReadOther | QFileDevice::ExeOther;

void becomeNobody()
{
    constexpr unsigned nobody = 65534;
    if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0)) {
        _exit(127);
    }
}

} // namespace

DroppedUser::DroppedUser()
{
    for (const QString &file : {hostProgram, coreLibrary, plainTextPlugin}) {
        copyInto(m_folder.path(), file);
    }
    makePublic(m_folder.path());
}

HostResult DroppedUser::runHost(const QStringList &arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_LIBRARY_PATH"_s, m_folder.path());
    environment.insert(u"ORVANE_PLUGIN_PATH"_s, m_folder.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier(becomeNobody);
    process.start(m_folder.filePath(u"orvane-host"_s), arguments);
    return finished(process);
}

void makeReadOnly(const QString &folder)
{
    EXPECT_TRUE(QFile::setPermissions(folder, everyoneMayRead));
}

void makePublic(const QString &folder)
{
    EXPECT_TRUE(QFile::setPermissions(folder, everyoneMayRead | QFileDevice::WriteOwner));
}

} // namespace end_to_end
