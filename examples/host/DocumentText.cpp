#include "DocumentText.h"

#include "ManuscriptFile.h"
#include "Messages.h"

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/run/ArchivedContent.h>

#include <QtCore/QStringDecoder>

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;

namespace host {

namespace {

/// The index of the first byte that is not part of UTF-8 text, for a content that has one.
qsizetype firstBadByte(const QByteArray &content)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    qsizetype index = 0;
    while (index < content.size()) {
        const QString decoded = decoder(QByteArrayView(content).sliced(index, 1));
        if (decoder.hasError()) {
            break;
        }
        ++index;
    }
    return index;
}

QString textOfFile(const QByteArray &content, const QString &path)
{
    if (!content.isValidUtf8()) {
        const qsizetype offset = firstBadByte(content);
        throw manuscriptError(Texts::tr("%1 is no UTF-8 text from byte %2 on (%3); save the file as UTF-8")
                                  .arg(quoted(path), QString::number(offset), placeAt(content, offset)));
    }
    QStringDecoder decoder(QStringDecoder::Utf8); // drops a byte order mark
    return decoder(content);
}

bool holdsArchive(const QByteArray &content, const QString &path)
{
    return path.endsWith(".archive"_L1) || content.startsWith("bplist00");
}

QVariant unarchived(const QByteArray &content, const QString &path)
{
    try {
        return KZArrayExportAdditions::arrayWithUnarchivedKeyedContent({content}).first();
    } catch (const platform::Exception &exception) {
        throw manuscriptError(Texts::tr("%1 is no keyed archive of a text: %2; save the document again")
                                  .arg(quoted(path), printable(QString::fromUtf8(exception.what()))));
    }
}

AttributedString textOfArchive(const QByteArray &content, const QString &path)
{
    const QVariant object = unarchived(content, path);
    if (object.metaType() == QMetaType::fromType<QString>()) {
        return AttributedString(object.toString());
    }
    if (object.metaType() != QMetaType::fromType<AttributedString>()) {
        const bool isUnknown = object.metaType() == QMetaType::fromType<platform::KeyedObject>();
        const QString kind =
            isUnknown ? object.value<platform::KeyedObject>().className() : QString::fromUtf8(object.typeName());
        throw manuscriptError(Texts::tr("%1 holds no text but a value of type %2; save the document as a text")
                                  .arg(quoted(path), printable(kind)));
    }
    return object.value<AttributedString>();
}

} // namespace

AttributedString documentText(const QString &path)
{
    const QByteArray content = fileContent(path);
    return holdsArchive(content, path) ? textOfArchive(content, path) : AttributedString(textOfFile(content, path));
}

bool isArchive(const QString &path)
{
    return holdsArchive(fileContent(path), path);
}

} // namespace host
