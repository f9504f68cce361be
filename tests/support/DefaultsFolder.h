#pragma once

#include <OrvaneExportKit/platform/UserDefaults.h>
#include <tests/support/Files.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtCore/QVariant>

#include <optional>

#include <sys/stat.h>

namespace support {

inline testing::AssertionResult contains(const QString &text, const QString &piece)
{
    if (text.contains(piece)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << testing::PrintToString(text) << " lacks " << testing::PrintToString(piece);
}

/// Tests of user defaults in a folder of their own, which is there and empty.
class DefaultsFolder : public testing::Test
{
protected:
    DefaultsFolder() { EXPECT_TRUE(QDir().mkdir(folder())); }

    QString folder() const { return m_parent.filePath(QStringLiteral("defaults")); }

    /// The file of a domain.
    QString path(const QString &domain) const { return folder() + u'/' + domain + QStringLiteral(".plist"); }

    /// The folder around the folder.
    QString parentFolder() const { return m_parent.path(); }

    /// Lets every user put files into the folder.
    void openToEveryone() const
    {
        const QByteArray parent = QFile::encodeName(parentFolder());
        const QByteArray own = QFile::encodeName(folder());
        EXPECT_EQ(chmod(parent.constData(), 0755), 0);
        EXPECT_EQ(chmod(own.constData(), 0777), 0);
    }

    /// What another program finds in a domain.
    std::optional<QVariantMap> savedDomain(const QString &domain) const
    {
        return platform::UserDefaults(folder()).persistentDomainForName(domain);
    }

private:
    QTemporaryDir m_parent;
};

} // namespace support
