#pragma once

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <map>
#include <string>

namespace support {

/// What stands in files, by their names.
using Lines = std::map<std::string, std::string>;

/// The kit on the one side, a Python script on the other, and a folder between them. Skips the test where there is no
/// Python.
class PythonInterchange : public testing::Test
{
protected:
    explicit PythonInterchange(const QString &script) : m_script(script) {}

    void SetUp() override
    {
        m_python = QStandardPaths::findExecutable(QStringLiteral("python3"));
        if (m_python.isEmpty()) {
            GTEST_SKIP() << "there is no python3";
        }
        ASSERT_TRUE(m_folder.isValid());
    }

    void writeFile(const QString &name, const QByteArray &data) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(data), data.size());
    }

    /// What the script prints, a line for each file.
    Lines runScript(const QStringList &arguments) const
    {
        QProcess script;
        script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        script.start(m_python, QStringList{m_script} + arguments + QStringList{m_folder.path()});
        EXPECT_TRUE(script.waitForFinished(-1));
        EXPECT_EQ(script.exitCode(), 0);
        Lines lines;
        for (const QByteArray &line : script.readAllStandardOutput().split('\n')) {
            const qsizetype space = line.indexOf(' ');
            if (space > 0) {
                lines[line.first(space).toStdString()] = line.sliced(space + 1).toStdString();
            }
        }
        return lines;
    }

    /// What `line` makes of the content of each file.
    template <typename Line>
    Lines readFolder(const Line &line) const
    {
        Lines lines;
        const QDir folder(m_folder.path());
        for (const QString &name : folder.entryList(QDir::Files)) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            lines[name.toStdString()] = line(file.readAll());
        }
        return lines;
    }

private:
    QString m_script;
    QString m_python;
    QTemporaryDir m_folder;
};

} // namespace support
