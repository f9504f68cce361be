#pragma once

#include <OrvaneExportKit/platform/UserDefaults.h>

#include <gtest/gtest.h>

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace support {

/// A folder of its own for the standard defaults of the test program, named before anything can read them.
class TemporaryDefaultsFolder
{
public:
    TemporaryDefaultsFolder() { qputenv("ORVANE_DEFAULTS_FOLDER", m_folder.path().toUtf8()); }

private:
    QTemporaryDir m_folder;
};

inline const TemporaryDefaultsFolder temporaryDefaultsFolder;

/// Tests that read and write the standard defaults. Each starts without any domain.
class TemporaryDefaults : public testing::Test
{
protected:
    static platform::UserDefaults &defaults() { return platform::UserDefaults::standardUserDefaults(); }

    void SetUp() override
    {
        ASSERT_EQ(defaults().folder().toUtf8(), qgetenv("ORVANE_DEFAULTS_FOLDER"));
        for (const QString &domain : defaults().persistentDomainNames()) {
            ASSERT_TRUE(defaults().removePersistentDomainForName(domain));
        }
    }
};

} // namespace support
