#include <OrvaneExportKit/platform/KeyPaths.h>

#include <QtCore/QMetaProperty>
#include <QtCore/QStringList>

using namespace Qt::Literals::StringLiterals;

namespace platform {

namespace {

InvalidArgumentException keyPathError(const QString &keyPath, const QString &problem)
{
    return InvalidArgumentException(u"the key path \"%1\": %2"_s.arg(keyPath, problem).toStdString());
}

QString className(const QObject &object)
{
    return QString::fromLatin1(object.metaObject()->className());
}

QStringList keysOf(const QString &keyPath)
{
    QStringList keys = keyPath.split(u'.');
    if (keys.contains(QString())) {
        throw keyPathError(keyPath, u"a key is empty"_s);
    }
    return keys;
}

/// Reads and writes what one object keeps under a key; knows the whole path for its errors.
class Step
{
public:
    Step(const KeyPathStep &step, const QString &keyPath)
        : m_object(*step.object),
          m_coding(qobject_cast<KeyValueCoding *>(step.object)),
          m_key(step.key),
          m_property(m_key.toUtf8()),
          m_keyPath(keyPath)
    {
        const bool isKnown = m_coding != nullptr || m_object.metaObject()->indexOfProperty(m_property) >= 0 ||
                             m_object.dynamicPropertyNames().contains(m_property);
        if (!isKnown) {
            throw keyPathError(m_keyPath, u"%1 has no property \"%2\""_s.arg(className(m_object), m_key));
        }
    }

    QVariant value() const
    {
        return m_coding != nullptr ? m_coding->valueForKey(m_key) : m_object.property(m_property);
    }

    void setValue(const QVariant &value) const
    {
        if (m_coding != nullptr) {
            m_coding->setValue(value, m_key);
        } else if (!m_object.setProperty(m_property, value) && isDeclared()) {
            throw keyPathError(m_keyPath, u"the property \"%1\" of %2 cannot be set to a value of the type %3"_s.arg(
                                              m_key, className(m_object), QString::fromLatin1(value.typeName())));
        }
    }

private:
    /// `QObject::setProperty` answers false for dynamic properties even when it has set them.
    bool isDeclared() const { return m_object.metaObject()->indexOfProperty(m_property) >= 0; }

    QObject &m_object;
    KeyValueCoding *m_coding;
    QString m_key;
    QByteArray m_property;
    const QString &m_keyPath;
};

bool isObject(const QVariant &value)
{
    return value.metaType().flags().testFlag(QMetaType::PointerToQObject);
}

/// The dictionary in a value on the way of a key path: an empty one where there is no value.
QVariantMap dictionaryIn(const QVariant &value, const QString &key, const QString &keyPath)
{
    if (value.isValid() && value.typeId() != QMetaType::QVariantMap) {
        throw keyPathError(
            keyPath, u"a value of the type %1 has no key \"%2\""_s.arg(QString::fromLatin1(value.typeName()), key));
    }
    return value.toMap();
}

/// The dictionary with a value stored at the keys.
QVariantMap withValue(QVariantMap dictionary, const QStringList &keys, const QVariant &value, const QString &keyPath)
{
    const QString &key = keys.first();
    if (keys.size() > 1) {
        const QStringList furtherKeys = keys.sliced(1);
        const QVariantMap inner = dictionaryIn(dictionary.value(key), furtherKeys.first(), keyPath);
        dictionary[key] = withValue(inner, furtherKeys, value, keyPath);
    } else if (value.isValid()) {
        dictionary[key] = value;
    } else {
        dictionary.remove(key);
    }
    return dictionary;
}

QStringList keysBehind(const QList<KeyPathStep> &steps, const QString &keyPath)
{
    QStringList keys = keysOf(keyPath);
    keys.remove(0, steps.size());
    return keys;
}

} // namespace

KeyValueCoding::~KeyValueCoding() = default;

QList<KeyPathStep> keyPathSteps(QObject *object, const QString &keyPath)
{
    if (object == nullptr) {
        throw keyPathError(keyPath, u"there is no object"_s);
    }
    QList<KeyPathStep> steps;
    const QStringList keys = keysOf(keyPath);
    for (const QString &key : keys) {
        steps.append({object, key});
        const QVariant value = Step(steps.last(), keyPath).value();
        object = isObject(value) ? value.value<QObject *>() : nullptr;
        if (object == nullptr) {
            break;
        }
    }
    return steps;
}

QVariant valueForKeyPath(QObject *object, const QString &keyPath)
{
    const QList<KeyPathStep> steps = keyPathSteps(object, keyPath);
    QVariant value = Step(steps.last(), keyPath).value();
    const QStringList dictionaryKeys = keysBehind(steps, keyPath);
    if (isObject(value) && !dictionaryKeys.isEmpty()) {
        return {}; // a null pointer, or the path would go on with that object
    }
    for (const QString &key : dictionaryKeys) {
        value = dictionaryIn(value, key, keyPath).value(key);
    }
    return value;
}

void setValueForKeyPath(QObject *object, const QVariant &value, const QString &keyPath)
{
    const QList<KeyPathStep> steps = keyPathSteps(object, keyPath);
    const Step last(steps.last(), keyPath);
    const QStringList dictionaryKeys = keysBehind(steps, keyPath);
    if (dictionaryKeys.isEmpty()) {
        last.setValue(value);
        return;
    }
    const QVariant outermost = last.value();
    if (isObject(outermost)) {
        throw keyPathError(keyPath, u"there is no object behind \"%1\""_s.arg(steps.last().key));
    }
    last.setValue(withValue(dictionaryIn(outermost, dictionaryKeys.first(), keyPath), dictionaryKeys, value, keyPath));
}

} // namespace platform
