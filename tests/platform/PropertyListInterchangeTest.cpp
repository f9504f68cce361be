#include <OrvaneExportKit/platform/PropertyList.h>
#include <tests/support/PropertyListDump.h>
#include <tests/support/RandomPropertyLists.h>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>

#include <map>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using support::dump;
using support::RandomPropertyLists;

namespace {

constexpr unsigned seed = 20240229;
constexpr std::pair<PropertyList::Format, QLatin1StringView> formats[] = {{PropertyList::Format::Xml, "xml"_L1},
                                                                          {PropertyList::Format::Binary, "binary"_L1}};

/// What stands in files, by their names.
using Lines = std::map<std::string, std::string>;

/// The kit on the one side, Python's `plistlib` on the other, and a folder between them.
class PropertyListInterchange : public testing::Test
{
protected:
    void SetUp() override
    {
        m_python = QStandardPaths::findExecutable(u"python3"_s);
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
        script.start(m_python, QStringList{QStringLiteral(ORVANE_PROPERTY_LIST_SCRIPT)} + arguments +
                                   QStringList{m_folder.path()});
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

    Lines readFolder() const
    {
        Lines lines;
        const QDir folder(m_folder.path());
        for (const QString &name : folder.entryList(QDir::Files)) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            lines[name.toStdString()] = dump(PropertyList::read(file.readAll()));
        }
        return lines;
    }

private:
    QString m_python;
    QTemporaryDir m_folder;
};

TEST_F(PropertyListInterchange, PythonReadsWhatTheKitWrites)
{
    RandomPropertyLists lists(seed);
    Lines written;
    for (int i = 0; i < 150; ++i) {
        const QVariant value = lists.value();
        for (const auto &[format, extension] : formats) {
            const QString name = u"%1.%2"_s.arg(i).arg(extension);
            writeFile(name, PropertyList::write(value, format).data.value());
            written[name.toStdString()] = dump(value);
        }
    }
    EXPECT_EQ(runScript({u"dump"_s}), written) << "seed " << seed;
}

TEST_F(PropertyListInterchange, TheKitReadsWhatPythonWrites)
{
    const Lines written = runScript({u"generate"_s, QString::number(seed), u"150"_s});
    ASSERT_EQ(written.size(), 300U);
    EXPECT_EQ(readFolder(), written) << "seed " << seed;
}

TEST_F(PropertyListInterchange, PythonReadsCarriageReturnsUidsAndMillisecondsOfTheKit)
{
    const QVariant text = u"a\rb\r\nc\n"_s;
    const QVariant values = QVariantList{text, QDateTime::fromMSecsSinceEpoch(1'234'567'890'123, Qt::UTC),
                                         QVariant::fromValue(PropertyList::Uid{70'000})};
    writeFile(u"text"_s, PropertyList::write(text, PropertyList::Format::Xml).data.value());
    writeFile(u"values"_s, PropertyList::write(values, PropertyList::Format::Binary).data.value());
    EXPECT_EQ(runScript({u"dump"_s}), (Lines{{"text", dump(text)}, {"values", dump(values)}}));
}

TEST_F(PropertyListInterchange, BothReadTheSameFromChangedBytesThatBothTake)
{
    RandomPropertyLists random(seed);
    for (int i = 0; i < 30; ++i) {
        const QVariant value = random.value();
        for (const auto &[format, extension] : formats) {
            const QByteArray list = PropertyList::write(value, format).data.value();
            for (int change = 0; change < 25; ++change) {
                QByteArray changed = list;
                changed[static_cast<qsizetype>(random.below(static_cast<quint64>(list.size())))] =
                    static_cast<char>(random.below(256));
                writeFile(u"%1-%2.%3"_s.arg(i).arg(change).arg(extension), changed);
            }
        }
    }
    const Lines ours = readFolder();
    const Lines theirs = runScript({u"dump"_s});
    ASSERT_EQ(ours.size(), theirs.size());
    int bothTake = 0;
    for (const auto &[name, line] : theirs) {
        if (line != "error" && !ours.at(name).starts_with("error")) {
            ++bothTake;
            EXPECT_EQ(ours.at(name), line) << "seed " << seed << ", file " << name;
        }
    }
    EXPECT_GT(bothTake, 100);
}

} // namespace
