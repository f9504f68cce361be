#include <tests/end_to_end/FormatTest.h>

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

HostResult FormatTest::exportWith(const QStringList &settings) const
{
    QStringList options = {u"--yes"_s, u"--plugin"_s, m_plugin};
    for (const QString &setting : settings) {
        options += {u"--set"_s, setting};
    }
    return runExport(options);
}

QByteArray FormatTest::exportOf(const QByteArray &text, const QStringList &settings) const
{
    writeManuscript({{u"Text"_s, text}});
    const HostResult result = exportWith(settings);
    EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
    return fileContent(result.output.section(u'\n', 0, 0));
}

QByteArray FormatTest::contentOf(const QByteArray &text, const QByteArray &before, const QByteArray &after,
                                 const QStringList &settings) const
{
    const QByteArray file = exportOf(text, settings);
    const qsizetype start = file.indexOf(before) + before.size();
    return file.sliced(start, file.lastIndexOf(after) - start);
}

void FormatTest::expectSample(const QString &manuscript, const QString &file, const QString &stored) const
{
    const HostResult result = runHost({u"export"_s, manuscriptsFolder + u'/' + manuscript, u"--plugin"_s, m_plugin,
                                       u"--to"_s, destination(), u"--pattern"_s, u"<1>"_s, u"--yes"_s});
    EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
    EXPECT_EQ(fileContent(exported(file)), fileContent(expectedFolder + u'/' + manuscript + u'/' + stored));
}

testing::AssertionResult FormatTest::passes(const QString &program, const QStringList &options, const QString &file,
                                            const QString &complaint) const
{
    QProcess process;
    process.setWorkingDirectory(destination());
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, options + QStringList{file});
    if (!process.waitForFinished(60000)) {
        return testing::AssertionFailure() << program.toStdString() << ": " << process.errorString().toStdString();
    }
    const QString said = QString::fromUtf8(process.readAll());
    if (process.exitCode() != 0 || QRegularExpression(complaint).match(said).hasMatch()) {
        return testing::AssertionFailure() << file.toStdString() << ": " << said.toStdString();
    }
    return testing::AssertionSuccess();
}

} // namespace end_to_end
