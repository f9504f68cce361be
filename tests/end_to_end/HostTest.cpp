#include <tests/end_to_end/HostTest.h>

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

HostTest::HostTest()
{
    EXPECT_TRUE(QDir().mkpath(destination()));
    writeManuscript({{u"One"_s, "The first."}, {u"Two"_s, "The second."}, {u"Three"_s, "The third."}});
}

QString HostTest::path(const QString &name) const
{
    return m_folder.filePath(name);
}

void HostTest::addTestPlugin(const QString &name) const
{
    copyInto(plugins(), testPluginFolder + u'/' + name + u".so"_s);
}

void HostTest::writeManuscript(const QList<TestDocument> &documents) const
{
    EXPECT_TRUE(QDir(manuscript()).removeRecursively());
    EXPECT_TRUE(QDir().mkpath(manuscript()));
    QJsonArray entries;
    for (const TestDocument &document : documents) {
        const QString file = QString::number(entries.size() + 1) + u".txt"_s;
        writeFile(manuscript() + u'/' + file, document.text);
        entries.append(QJsonObject{{u"file"_s, file},
                                   {u"name"_s, document.name},
                                   {u"status"_s, document.status},
                                   {u"label"_s, document.label}});
    }
    const QJsonObject root{{u"title"_s, u"A Test"_s}, {u"language"_s, u"en_US"_s}, {u"documents"_s, entries}};
    writeManifest(QJsonDocument(root).toJson());
}

void HostTest::writeManifest(const QByteArray &json) const
{
    writeFile(manuscript() + u"/manuscript.json"_s, json);
}

QStringList HostTest::exportArguments(const QStringList &options) const
{
    return QStringList{u"export"_s, manuscript(), u"--plugin"_s, u"plain-text"_s, u"--to"_s, destination()} + options;
}

} // namespace end_to_end
