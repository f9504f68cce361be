#include "XmlStreams.h"

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace {

using namespace Qt::Literals::StringLiterals;

void write(QXmlStreamWriter &writer, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        writer.writeTextElement(u"string"_s, value.toString());
        break;
    case QMetaType::LongLong:
        writer.writeTextElement(u"integer"_s, QString::number(value.toLongLong()));
        break;
    case QMetaType::Double:
        writer.writeTextElement(u"real"_s, QString::number(value.toDouble()));
        break;
    case QMetaType::Bool:
        writer.writeEmptyElement(value.toBool() ? u"true"_s : u"false"_s);
        break;
    default: {
        writer.writeStartElement(u"dict"_s);
        const QVariantMap entries = value.toMap();
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
            writer.writeTextElement(u"key"_s, entry.key());
            write(writer, *entry);
        }
        writer.writeEndElement();
        break;
    }
    }
}

QVariant read(QXmlStreamReader &reader)
{
    if (reader.name() == u"string") {
        return reader.readElementText();
    }
    if (reader.name() == u"integer") {
        return reader.readElementText().toLongLong();
    }
    if (reader.name() == u"real") {
        return reader.readElementText().toDouble();
    }
    if (reader.name() != u"dict") {
        const bool flag = reader.name() == u"true";
        reader.skipCurrentElement();
        return flag;
    }
    QVariantMap entries;
    while (reader.readNextStartElement()) {
        const QString key = reader.readElementText();
        reader.readNextStartElement();
        entries.insert(key, read(reader));
    }
    return entries;
}

} // namespace

QByteArray writtenByStream(const QVariantMap &settings)
{
    QByteArray list;
    QXmlStreamWriter writer(&list);
    writer.setAutoFormatting(true);
    writer.setAutoFormattingIndent(-1); // tabs
    writer.writeStartDocument();
    writer.writeDTD(u"<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"_s);
    writer.writeStartElement(u"plist"_s);
    writer.writeAttribute(u"version"_s, u"1.0"_s);
    write(writer, settings);
    writer.writeEndDocument();
    return list;
}

QVariant readByStream(const QByteArray &list)
{
    QXmlStreamReader reader(list);
    reader.readNextStartElement(); // <plist>
    reader.readNextStartElement();
    return read(reader);
}
