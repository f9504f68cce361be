#include "ManuscriptReader.h"

#include "HostError.h"
#include "ManuscriptFile.h"
#include "Messages.h"

#include <OrvaneExportKit/platform/Paths.h>

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QList>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

/// An object of manuscript.json and how messages call it.
struct JsonPart {
    QJsonObject values;
    QString description;
};

QString requiredString(const JsonPart &part, const QString &key)
{
    const QJsonValue value = part.values.value(key);
    if (!value.isString()) {
        throw manuscriptError(Texts::tr("%1 needs a \"%2\" with a string as its value").arg(part.description, key));
    }
    return value.toString();
}

QString optionalString(const JsonPart &part, const QString &key)
{
    return part.values.contains(key) ? requiredString(part, key) : QString();
}

JsonPart rootPart(const QString &path)
{
    const QByteArray content = fileContent(path);
    QJsonParseError error = {};
    const QJsonDocument json = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError) {
        throw manuscriptError(Texts::tr("%1 is no valid JSON: %2: %3; correct it there")
                                  .arg(quoted(path), placeAt(content, error.offset), error.errorString()));
    }
    if (!json.isObject()) {
        throw manuscriptError(Texts::tr("%1 needs an object, {...}, as its content").arg(quoted(path)));
    }
    return {json.object(), quoted(path)};
}

QList<JsonPart> documentParts(const JsonPart &root)
{
    const QJsonValue documents = root.values.value("documents"_L1);
    if (!documents.isArray()) {
        throw manuscriptError(
            Texts::tr("%1 needs a \"documents\" with a list, [...], as its value").arg(root.description));
    }
    QList<JsonPart> parts;
    const QJsonArray entries = documents.toArray();
    for (const auto &document : entries) {
        const QString description = Texts::tr("document %1 in %2").arg(parts.size() + 1).arg(root.description);
        if (!document.isObject()) {
            throw manuscriptError(Texts::tr("%1 must be an object, {...}").arg(description));
        }
        parts.append({document.toObject(), description});
    }
    return parts;
}

ManuscriptDocument::Entry entryOf(const JsonPart &document, const QString &folder)
{
    const QString file = requiredString(document, u"file"_s);
    if (file.isEmpty() || QDir::isAbsolutePath(file) || file.split(u'/').contains(".."_L1) ||
        file.contains(QChar::Null)) {
        throw manuscriptError(Texts::tr("%1 names the file %2; give a path inside the manuscript's folder")
                                  .arg(document.description, quoted(file)));
    }
    return {platform::appendingPathComponent(folder, file), requiredString(document, u"name"_s),
            optionalString(document, u"status"_s), optionalString(document, u"label"_s)};
}

QString manifestPath(const QString &folder)
{
    const QFileInfo info(folder);
    if (!info.exists()) {
        throw manuscriptError(Texts::tr("there is no manuscript folder %1; check the path").arg(quoted(folder)));
    }
    if (!info.isDir()) {
        throw manuscriptError(
            Texts::tr("%1 is no folder; give the folder that holds manuscript.json").arg(quoted(folder)));
    }
    QString path = platform::appendingPathComponent(folder, u"manuscript.json"_s);
    if (!QFileInfo::exists(path)) {
        throw manuscriptError(
            Texts::tr("there is no manuscript.json in %1; give the folder that holds it").arg(quoted(folder)));
    }
    return path;
}

} // namespace

Manuscript openManuscript(const QString &folder)
{
    const JsonPart root = rootPart(manifestPath(folder));
    Manuscript manuscript{requiredString(root, u"title"_s), {}};
    for (const JsonPart &document : documentParts(root)) {
        manuscript.documents.emplace_back(entryOf(document, folder));
    }
    return manuscript;
}

Manuscript readManuscript(const QString &folder)
{
    Manuscript manuscript = openManuscript(folder);
    for (ManuscriptDocument &document : manuscript.documents) {
        document.setText(document.text());
    }
    return manuscript;
}

} // namespace host
