#include "ManuscriptFolder.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace host_tests {

ManuscriptFolder::ManuscriptFolder()
{
    EXPECT_TRUE(QDir().mkpath(manuscript()));
    EXPECT_TRUE(QDir().mkpath(destination()));
}

void ManuscriptFolder::addDocument(const QString &name, const QByteArray &text)
{
    m_names.append(name);
    writeFile(fileOf(name), text);
    QJsonArray documents;
    for (const QString &each : m_names) {
        documents.append(QJsonObject{{u"file"_s, each + u".txt"_s}, {u"name"_s, each}, {u"status"_s, u"Draft"_s}});
    }
    const QJsonObject root{{u"title"_s, u"A Test"_s}, {u"documents"_s, documents}};
    writeFile(manuscript() + u"/manuscript.json"_s, QJsonDocument(root).toJson());
}

QByteArray ManuscriptFolder::contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

void ManuscriptFolder::writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    EXPECT_EQ(file.write(content), content.size());
}

} // namespace host_tests
