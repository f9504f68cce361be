#pragma once

#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <initializer_list>

/// \file
/// Keyed archives put together by hand, entry by entry, without the kit's archiver; the XML ones without its writer of
/// property lists, too.
///
///     keyedArchive({object(u"NSArray"_s, {{u"NS.objects"_s, uids({2, 2})}}), u"twice"_s})

namespace support {

using namespace Qt::Literals::StringLiterals;

inline QVariant uid(quint32 index)
{
    return QVariant::fromValue(platform::PropertyList::Uid{index});
}

inline QVariantList uids(std::initializer_list<quint32> indices)
{
    QVariantList references;
    for (const quint32 index : indices) {
        references.append(uid(index));
    }
    return references;
}

/// The fields of an object; `keyedArchive` makes the entry of its class, which derives from `NSObject` alone.
inline QVariantMap object(const QString &className, QVariantMap fields = {})
{
    fields.insert(u"$class"_s, className);
    return fields;
}

/// The property list of an archive with these objects, the first of which has the index 1 and is the root. Names in the
/// place of class references become references to class entries behind the objects.
inline QVariantMap keyedArchive(QVariantList objects, const QVariantMap &top = {{u"root"_s, uid(1)}})
{
    objects.prepend(u"$null"_s);
    QMap<QString, quint32> classes;
    for (qsizetype i = 0, count = objects.size(); i < count; ++i) {
        QVariantMap fields = objects[i].toMap();
        const QVariant className = fields.value(u"$class"_s);
        if (className.typeId() != QMetaType::QString) {
            continue;
        }
        const QString name = className.toString();
        if (!classes.contains(name)) {
            classes.insert(name, static_cast<quint32>(objects.size()));
            objects.append(QVariantMap{{u"$classname"_s, name}, {u"$classes"_s, QVariantList{name, u"NSObject"_s}}});
        }
        fields.insert(u"$class"_s, uid(classes.value(name)));
        objects[i] = fields;
    }
    return {{u"$archiver"_s, u"NSKeyedArchiver"_s},
            {u"$version"_s, qint64{100000}},
            {u"$top"_s, top},
            {u"$objects"_s, objects}};
}

inline QString xmlElement(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return u"<string>"_s + value.toString().toHtmlEscaped() + u"</string>"_s;
    case QMetaType::Bool:
        return value.toBool() ? u"<true/>"_s : u"<false/>"_s;
    case QMetaType::Double:
        return u"<real>"_s + QString::number(value.toDouble(), 'g', 17) + u"</real>"_s;
    case QMetaType::QByteArray:
        return u"<data>\n"_s + QString::fromLatin1(value.toByteArray().toBase64()) + u"\n</data>"_s;
    case QMetaType::QDateTime:
        return u"<date>"_s + value.toDateTime().toString(Qt::ISODate) + u"</date>"_s;
    case QMetaType::QVariantList: {
        QString elements;
        for (const QVariant &element : value.toList()) {
            elements += xmlElement(element);
        }
        return u"<array>"_s + elements + u"</array>"_s;
    }
    case QMetaType::QVariantMap: {
        QString entries;
        const QVariantMap map = value.toMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            entries += u"<key>"_s + entry.key().toHtmlEscaped() + u"</key>"_s + xmlElement(*entry);
        }
        return u"<dict>"_s + entries + u"</dict>"_s;
    }
    default:
        if (value.metaType() == QMetaType::fromType<platform::PropertyList::Uid>()) {
            const quint32 index = value.value<platform::PropertyList::Uid>().value;
            return u"<dict><key>CF$UID</key><integer>%1</integer></dict>"_s.arg(index);
        }
        return u"<integer>"_s + value.toString() + u"</integer>"_s;
    }
}

inline QByteArray xmlArchive(const QVariant &propertyList)
{
    return ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" +
            xmlElement(propertyList).toUtf8() + "\n</plist>\n");
}

inline QByteArray binaryArchive(const QVariant &propertyList)
{
    return platform::PropertyList::write(propertyList, platform::PropertyList::Format::Binary).data.value();
}

} // namespace support
