// Unarchives the input, walks all that is in it, archives it again and requires that the second archive holds the same.

#include <fuzz/Require.h>

#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QUrl>

#include <algorithm>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::KeyedArchiver;
using platform::KeyedObject;
using platform::KeyedUnarchiver;

/// A text that is the same for equal graphs of objects: small values that share each other can expand to more than
/// memory holds, so it ends after so many values.
class Description
{
public:
    explicit Description(const QVariant &root)
    {
        add(root);
        for (qsizetype i = 0; i < m_objects.size() && m_valuesLeft > 0; ++i) {
            const KeyedObject object = m_objects[i]; // a copy, as its fields append to the list
            addFields(object);
        }
    }

    const QString &text() const { return m_text; }

private:
    void add(const QVariant &value)
    {
        if (m_valuesLeft-- <= 0) {
            return;
        }
        m_text += QLatin1StringView(value.typeName()) + u'(';
        if (value.metaType() == QMetaType::fromType<KeyedObject>()) {
            addObject(value.value<KeyedObject>());
        } else if (value.typeId() == QMetaType::QVariantList) {
            addList(value.toList());
        } else if (value.typeId() == QMetaType::QVariantMap) {
            addMap(value.toMap());
        } else if (value.metaType() == QMetaType::fromType<platform::ObjectSet>()) {
            addList(value.value<platform::ObjectSet>().elements);
        } else if (value.metaType() == QMetaType::fromType<platform::OrderedObjectSet>()) {
            addList(value.value<platform::OrderedObjectSet>().elements);
        } else if (value.metaType() == QMetaType::fromType<platform::CountedObjectSet>()) {
            addList(value.value<platform::CountedObjectSet>().elements);
            QDebug(&m_text) << value.value<platform::CountedObjectSet>().counts;
        } else if (value.metaType() == QMetaType::fromType<platform::ObjectDictionary>()) {
            addList(value.value<platform::ObjectDictionary>().keys);
            addList(value.value<platform::ObjectDictionary>().objects);
        } else if (value.metaType() == QMetaType::fromType<platform::AttributedString>()) {
            addText(value.value<platform::AttributedString>());
        } else {
            addScalar(value);
        }
        m_text += u')';
    }

    void addObject(const KeyedObject &object)
    {
        if (!m_objects.contains(object)) {
            m_objects.append(object);
        }
        m_text += QString::number(m_objects.indexOf(object));
    }

    void addFields(const KeyedObject &object)
    {
        m_text += object.classNames().join(u',');
        const QStringList keys = object.keys();
        for (const QString &key : keys) {
            m_text += key + u'=';
            add(object.value(key));
        }
    }

    void addList(const QVariantList &list)
    {
        m_text += QString::number(list.size());
        for (const QVariant &element : list) {
            add(element);
        }
    }

    void addMap(const QVariantMap &map)
    {
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            m_text += entry.key() + u'=';
            add(entry.value());
        }
    }

    void addText(const platform::AttributedString &text)
    {
        m_text += text.string();
        for (platform::Range run; run.end() < text.length() && m_valuesLeft > 0;) {
            add(text.attributesAtIndex(run.end(), &run));
            m_text += QString::number(run.length);
        }
    }

    void addScalar(const QVariant &value)
    {
        constexpr qint64 exact = qint64{1} << 50; // the milliseconds that a date's seconds hold exactly
        if (value.typeId() == QMetaType::QDateTime) {
            m_text += QString::number(std::clamp(value.toDateTime().toMSecsSinceEpoch(), -exact, exact));
        } else if (value.typeId() == QMetaType::QString) {
            m_text += value.toString();
        } else {
            QDebug(&m_text) << value;
        }
    }

    QString m_text;
    QList<KeyedObject> m_objects;
    int m_valuesLeft = 500;
};

/// The archive of an object; empty for one that is refused, because fields that no class reads are malformed or hold
/// what property lists are not written with.
QByteArray archived(const QVariant &object)
{
    try {
        return KeyedArchiver::archivedDataWithRootObject(object);
    } catch (const platform::Exception &) {
        return {};
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    QVariant object;
    try {
        object = KeyedUnarchiver::unarchiveObjectWithData(
            QByteArrayView(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    } catch (const platform::ArchiveException &) {
        return 0;
    }
    const Description description(object);
    const QByteArray archive = archived(object);
    if (!archive.isEmpty()) {
        const Description restored(KeyedUnarchiver::unarchiveObjectWithData(archive));
        require(restored.text() == description.text(), "the archive that was written holds something else");
    }
    return 0;
}
