#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <OrvaneExportKit/controls/ValueTransformers.h>
#include <OrvaneExportKit/platform/ArchiveKinds.h>
#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/ErrorAlert.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <OrvaneExportKit/platform/PropertyList.h>
#include <OrvaneExportKit/platform/ScalarValues.h>
#include <OrvaneExportKit/platform/UserDefaults.h>
#include <OrvaneExportKit/platform/ValueTransformer.h>
#include <OrvaneExportKit/settings/MeasurementUnits.h>
#include <OrvaneExportKit/text/QuotationTable.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QSet>

#include <array>
#include <optional>

using platform::PropertyList;

namespace {

constexpr std::array<const char16_t *, 6> languagesOfStyles{u"de", u"de_CH", u"fr", u"en_US", u"en_UK", u"sv"};

void registerTransformers(float measurementUnitFactor)
{
    using platform::setValueTransformer;
    setValueTransformer(std::make_shared<KZMeasurementUnitTransformer>(measurementUnitFactor),
                        QStringLiteral("KZMeasurementUnitTransformer"));
    setValueTransformer(std::make_shared<KZLineHeightMultipleTransformer>(),
                        QStringLiteral("KZLineHeightMultipleTransformer"));
    setValueTransformer(std::make_shared<KZEmptyStringTransformer>(), QStringLiteral("KZEmptyStringTransformer"));
    setValueTransformer(std::make_shared<KZLocaleTransformer>(), QStringLiteral("KZLocaleTransformer"));
}

/// What was read from a property list.
struct Reading {
    QVariantMap dictionary;
    QString error; ///< why the dictionary is empty; else empty itself
};

Reading dictionaryFromData(const QByteArray &data)
{
    const PropertyList::ReadResult read = PropertyList::read(data, PropertyList::XmlUids::AsDictionaries);
    if (!read.value) {
        return {{}, read.error};
    }
    if (read.value->metaType() != QMetaType::fromType<QVariantMap>()) {
        return {{}, QStringLiteral("The root of the property list is not a dictionary.")};
    }
    return {read.value->toMap(), {}};
}

/// The XML property list of a dictionary, or nothing after an alert.
std::optional<QByteArray> dataFromDictionary(const QVariantMap &dictionary)
{
    PropertyList::WriteResult written = PropertyList::write(dictionary, PropertyList::Format::Xml);
    if (!written.data) {
        platform::alertError(written.error);
    }
    return std::move(written.data);
}

/// The class itself or its nearest base class that names a bundle.
const QMetaObject *classThatNamesBundle(const QMetaObject *metaObject)
{
    const int entry = metaObject->indexOfClassInfo("BundleIdentifier");
    while (entry < metaObject->classInfoOffset()) {
        metaObject = metaObject->superClass();
    }
    return metaObject;
}

/// Warns, once, of a class that names a bundle and whose `quotationStrings()` reads that of another. Constructors
/// cannot call this: they do not know yet of what class the object will be.
void warnOfMissingOperation(const QMetaObject *metaObject)
{
    const QMetaObject *const named = classThatNamesBundle(metaObject);
    const int operation = metaObject->indexOfMethod("quotationStrings()");
    static QSet<const QMetaObject *> warned;
    if (named == &KZExportSettings::staticMetaObject || warned.contains(named) ||
        (operation >= 0 && metaObject->method(operation).enclosingMetaObject() == named)) {
        return;
    }
    warned.insert(named);
    const char *const name = named->className();
    qWarning("%s names a bundle, but %s::quotationStrings() does not read the table there: write "
             "ORVANE_SETTINGS_BUNDLE(%s, ...) in the place of Q_CLASSINFO.",
             name, name, name);
}

/// What an archive among the settings holds, or why it holds nothing.
struct Unarchived {
    QVariant object;
    QString error; ///< one sentence; empty when there is an object
};

Unarchived unarchivedByKeys(const QByteArray &archive)
{
    try {
        QVariant object = platform::KeyedUnarchiver::unarchiveObjectWithData(archive);
        return object.isValid() ? Unarchived{object, {}}
                                : Unarchived{{}, QStringLiteral("the keyed archive holds no object")};
    } catch (const platform::ArchiveException &exception) {
        return {{}, QString::fromUtf8(exception.what())};
    }
}

Unarchived unarchived(const QVariant &stored)
{
    if (!stored.isValid()) {
        return {{}, QStringLiteral("there is no value under this key")};
    }
    if (stored.metaType() != QMetaType::fromType<QByteArray>()) {
        return {{}, QStringLiteral("the value is no archive, but of type %1").arg(QLatin1String(stored.typeName()))};
    }
    const QByteArray archive = stored.toByteArray();
    if (!platform::isNonKeyedArchive(archive)) {
        return unarchivedByKeys(archive);
    }
    Unarchived result;
    result.object = platform::Unarchiver::unarchiveObjectWithData(archive, result.error);
    return result;
}

void requireValue(const char *operation, const QVariant &value, const QString &key)
{
    if (value.isNull()) {
        throw platform::InvalidArgumentException(
            std::string(operation) + ": nothing cannot be stored under the key \"" + key.toStdString() + '"');
    }
}

} // namespace

KZExportSettings::KZExportSettings(const QString &bundleIdentifier, QObject *parent)
    : KeyValueCoding(parent), m_bundleIdentifier(bundleIdentifier)
{
    registerTransformers(measurementUnitFactor());
}

KZExportSettings::~KZExportSettings() = default;

std::unique_ptr<KZExportSettings> KZExportSettings::initWithBundleIdentifier(const QString &bundleIdentifier)
{
    return std::make_unique<KZExportSettings>(bundleIdentifier);
}

float KZExportSettings::measurementUnitFactor()
{
    return platform::measurementUnitFactor();
}

QStringList KZExportSettings::quotationStrings()
{
    return quotationStrings(staticMetaObject);
}

QStringList KZExportSettings::quotationStrings(const QMetaObject &receiver)
{
    return platform::quotationSamples(platform::Bundle::bundleForClass(receiver));
}

bool KZExportSettings::readSettingsFromDefaults(QString *error)
{
    warnOfMissingOperation(metaObject());
    const auto domain =
        platform::UserDefaults::standardUserDefaults().persistentDomainForName(m_bundleIdentifier, error);
    if (domain) {
        setDefaultDictionary(*domain);
    }
    return domain.has_value();
}

void KZExportSettings::writeSettingsToDefaults() const
{
    [[maybe_unused]] const bool isSaved = saveToDefaults(); // the defaults remember when it is not
}

bool KZExportSettings::saveToDefaults() const
{
    warnOfMissingOperation(metaObject());
    return platform::UserDefaults::standardUserDefaults().setPersistentDomain(m_settingsDict, m_bundleIdentifier);
}

QByteArray KZExportSettings::defaultData() const
{
    return dataFromDictionary(m_settingsDict).value_or(QByteArray());
}

void KZExportSettings::setDefaultData(const QByteArray &data)
{
    // The alert comes last: while it is open, the program goes on with the new settings, and may even destroy them.
    const Reading reading = dictionaryFromData(data);
    m_settingsDict = reading.dictionary;
    if (!reading.error.isEmpty()) {
        platform::alertError(reading.error);
    }
}

QVariantMap KZExportSettings::defaultDictionary() const
{
    return m_settingsDict;
}

void KZExportSettings::setDefaultDictionary(const QVariantMap &dictionary)
{
    if (const auto data = dataFromDictionary(dictionary)) {
        setDefaultData(*data);
    }
}

QVariant KZExportSettings::valueForKey(const QString &key) const
{
    return m_settingsDict.value(key);
}

QVariant KZExportSettings::objectForKey(const QString &key) const
{
    return m_settingsDict.value(key);
}

QVariant KZExportSettings::nonPropertyListObjectForKey(const QString &key) const
{
    return unarchived(m_settingsDict.value(key)).object;
}

QString KZExportSettings::nonPropertyListObjectErrorForKey(const QString &key) const
{
    const QString error = unarchived(m_settingsDict.value(key)).error;
    return error.isEmpty() ? error : key + QLatin1String(": ") + error;
}

float KZExportSettings::floatForKey(const QString &key) const
{
    return platform::floatValue(objectForKey(key));
}

quint32 KZExportSettings::unsignedIntegerForKey(const QString &key) const
{
    return platform::unsignedIntValue(objectForKey(key));
}

qint32 KZExportSettings::integerForKey(const QString &key) const
{
    return platform::intValue(objectForKey(key));
}

quint8 KZExportSettings::unsignedCharForKey(const QString &key) const
{
    return platform::unsignedCharValue(objectForKey(key));
}

qint8 KZExportSettings::charForKey(const QString &key) const
{
    return platform::charValue(objectForKey(key));
}

bool KZExportSettings::boolForKey(const QString &key) const
{
    return platform::boolValue(objectForKey(key));
}

void KZExportSettings::setValue(const QVariant &value, const QString &key)
{
    Q_EMIT willChangeValueForKey(key);
    requireValue("setValue", value, key);
    m_settingsDict.insert(key, value);
    Q_EMIT didChangeValueForKey(key);
}

void KZExportSettings::setObject(const QVariant &value, const QString &key)
{
    requireValue("setObject", value, key);
    m_settingsDict.insert(key, value);
}

void KZExportSettings::setNonPropertyListObject(const QVariant &value, const QString &key)
{
    requireValue("setNonPropertyListObject", value, key);
    m_settingsDict.insert(key, platform::Archiver::archivedDataWithRootObject(value));
}

void KZExportSettings::setFloat(float value, const QString &key)
{
    m_settingsDict.insert(key, value);
}

void KZExportSettings::setUnsignedInteger(quint32 value, const QString &key)
{
    m_settingsDict.insert(key, value);
}

void KZExportSettings::setInteger(qint32 value, const QString &key)
{
    m_settingsDict.insert(key, value);
}

void KZExportSettings::setUnsignedChar(quint8 value, const QString &key)
{
    m_settingsDict.insert(key, QVariant::fromValue(value));
}

void KZExportSettings::setChar(qint8 value, const QString &key)
{
    m_settingsDict.insert(key, QVariant::fromValue(value));
}

void KZExportSettings::setBool(bool value, const QString &key)
{
    m_settingsDict.insert(key, value);
}

void KZExportSettings::updateQuotationSettingForKey(const QString &key)
{
    const auto style = static_cast<quint32>(integerForKey(key));
    if (style < languagesOfStyles.size()) {
        m_settingsDict.insert(key, QString::fromUtf16(languagesOfStyles[style]));
    }
}
