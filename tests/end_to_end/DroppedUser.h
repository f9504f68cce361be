#pragma once

#include <tests/end_to_end/HostProcess.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

namespace end_to_end {

/// A user whom permissions bind: the one who runs the tests, or nobody when that is root. The program runs from a
/// folder that every user can reach, with copies of the libraries and of the plug-in that it loads: nobody may look
/// into the home of root, where the build may be.
class DroppedUser
{
public:
    DroppedUser();

    HostResult runHost(const QStringList &arguments) const;

private:
    QTemporaryDir m_folder;
};

/// Lets every user look into a folder and nobody but root change it.
void makeReadOnly(const QString &folder);

/// Lets every user look into a folder and all that is in it, and its owner change it.
void makePublic(const QString &folder);

} // namespace end_to_end
