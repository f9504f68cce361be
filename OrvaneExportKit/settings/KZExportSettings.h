#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyPaths.h>
#include <OrvaneExportKit/settings/SettingsKeys.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <memory>
#include <type_traits>

/// Names the bundle of a subclass of `KZExportSettings`, as a `Q_CLASSINFO("BundleIdentifier", ...)` does elsewhere,
/// and gives the subclass its own `quotationStrings()`, which reads the table of that bundle. C++ would call that of
/// the base class, which cannot know for whom. Stands behind `Q_OBJECT`, takes the name of the class, and leaves what
/// follows private.
///
///     class HtmlSettings : public KZExportSettings
///     {
///         Q_OBJECT
///         ORVANE_SETTINGS_BUNDLE(HtmlSettings, "com.example.html")
///     public:
///         using KZExportSettings::KZExportSettings;
///     };
///
/// A subclass that names its bundle without it is told of in a warning, when its first object is loaded or saved.
#define ORVANE_SETTINGS_BUNDLE(Class, identifier)                                                                      \
    Q_CLASSINFO("BundleIdentifier", identifier)                                                                        \
public:                                                                                                                \
    using KZExportSettings::quotationStrings;                                                                          \
    Q_INVOKABLE static QStringList quotationStrings()                                                                  \
    {                                                                                                                  \
        static_assert(std::is_same_v<decltype(&Class::metaObject), const QMetaObject *(Class::*)() const>,             \
                      "write Q_OBJECT before ORVANE_SETTINGS_BUNDLE, which takes the name of its own class");          \
        return KZExportSettings::quotationStrings(Class::staticMetaObject);                                            \
    }                                                                                                                  \
                                                                                                                       \
private:

/// The settings of one export plug-in: a dictionary of property-list values, kept in the user's defaults under the
/// plug-in's bundle identifier.
///
/// A settings object is empty when it is created. The plug-in fills it, changes it and saves it when it wants to:
///
///     KZExportSettings settings(u"com.example.plain-text"_s);
///     settings.readSettingsFromDefaults();
///     settings.setInteger(72, u"lineLength"_s);
///     settings.writeSettingsToDefaults();
///
/// Keys that a version of the plug-in does not know stay through every load and save. Where a conversion to or from a
/// property list fails, the error goes to `platform::alertError`, when what survives (each operation says what) is in
/// place already. A dictionary whose only key is `CF$UID` stays one: settings hold no references of keyed archives, and
/// a `PropertyList::Uid` that is put into them comes back as the dictionary that XML writes for it.
/// For use on the application's main thread. Nothing in it is locked: threads that use it at once damage it.
class ORVANE_CORE_EXPORT KZExportSettings : public platform::KeyValueCoding
{
    Q_OBJECT
    Q_CLASSINFO("BundleIdentifier", "org.orvane.ExportKit")

public:
    /// Creates an empty settings object and registers four new value transformers ("KZMeasurementUnitTransformer" with
    /// the user's measurement unit of this moment, "KZLineHeightMultipleTransformer", "KZEmptyStringTransformer",
    /// "KZLocaleTransformer") in the place of those that were registered under these names.
    explicit KZExportSettings(const QString &bundleIdentifier, QObject *parent = nullptr);
    ~KZExportSettings() override;

    /// The same, owned by the caller.
    static std::unique_ptr<KZExportSettings> initWithBundleIdentifier(const QString &bundleIdentifier);

    /// The user's measurement units per point: 1/72 for inches, 2.54/72 for centimetres.
    static float measurementUnitFactor();

    /// Nine samples of quotation marks around "abc", in the order of the languages of "KZLocaleTransformer", from the
    /// table "Quotes" of the bundle of the class: here the kit's, in a subclass with `ORVANE_SETTINGS_BUNDLE` its own.
    /// A language or mark that the table lacks reads "(null)". Throws what `platform::quotationSamples` throws.
    ///
    ///     KZExportSettings::quotationStrings();   // "“abc”", "„abc“", "”abc”", ...
    static QStringList quotationStrings();

    /// The same from the bundle that any class names, see `platform::Bundle::bundleForClass`.
    static QStringList quotationStrings(const QMetaObject &receiver);

    /// Replaces the settings by the saved ones. Answers false, and changes nothing, when none are saved, and when they
    /// cannot be read; then `error`, which may be null, receives why, else an empty text.
    bool readSettingsFromDefaults(QString *error = nullptr);

    /// Saves the settings in the standard user defaults. When that fails, `platform::UserDefaults::synchronize` answers
    /// false until it has succeeded or the settings are saved anew.
    void writeSettingsToDefaults() const;

    /// The same. True when the settings are on disk; else `lastError` of the standard user defaults says why, and names
    /// the key of a value that is not a property-list value.
    [[nodiscard]] bool saveToDefaults() const;

    /// The settings as an XML property list. Null, after an alert, when they hold a value that is not a property-list
    /// value.
    QByteArray defaultData() const;

    /// Replaces the settings by those of a property list of either format. When the data is not a property list with a
    /// dictionary as its root, the settings end up empty, and the error is shown.
    void setDefaultData(const QByteArray &data);

    /// A copy of the settings.
    QVariantMap defaultDictionary() const;

    /// Replaces the settings by a dictionary, passed through an XML property list. When it holds a value that is not a
    /// property-list value, the settings stay as they are, and the error is shown.
    void setDefaultDictionary(const QVariantMap &dictionary);

    /// The value stored under a key, whatever the key's name; an invalid `QVariant` when there is none.
    QVariant valueForKey(const QString &key) const override;
    QVariant objectForKey(const QString &key) const; ///< the same

    /// The value that `setNonPropertyListObject` stored, or the root object of a keyed archive that another program
    /// stored, as `platform::KeyedUnarchiver` decodes it. An invalid `QVariant` when the key is missing or holds
    /// something else.
    QVariant nonPropertyListObjectForKey(const QString &key) const;

    /// Why `nonPropertyListObjectForKey` answers nothing, in a sentence; empty when it answers an object.
    ///
    ///     const KZExportSettings settings(u"com.example.plain-text"_s);
    ///     settings.nonPropertyListObjectErrorForKey(u"font"_s);   // "font: there is no value under this key"
    QString nonPropertyListObjectErrorForKey(const QString &key) const;

    /// The scalar readers convert what is stored as `platform::floatValue` and its neighbours do: numbers as a C cast,
    /// strings by their leading decimal text, a missing key to zero. They throw
    /// `platform::UnrecognisedOperationException` for arrays, dictionaries, data and dates.
    float floatForKey(const QString &key) const;
    quint32 unsignedIntegerForKey(const QString &key) const;
    qint32 integerForKey(const QString &key) const;
    quint8 unsignedCharForKey(const QString &key) const;
    qint8 charForKey(const QString &key) const;
    bool boolForKey(const QString &key) const;

    /// Stores a value and tells observers: `willChangeValueForKey` goes out before, `didChangeValueForKey` after.
    /// No other writer tells anybody. Throws `platform::InvalidArgumentException` for an invalid or null value (the
    /// first of the two signals has gone out by then), as do the other two writers of objects.
    void setValue(const QVariant &value, const QString &key) override;
    void setObject(const QVariant &value, const QString &key); ///< stores a value silently

    /// Stores the archive of a value that is not a property-list value, such as a font. Throws
    /// `platform::InvalidArgumentException` also for a value that `platform::Archiver` cannot archive.
    void setNonPropertyListObject(const QVariant &value, const QString &key);

    /// The scalar writers store the number with exactly this type.
    void setFloat(float value, const QString &key);
    void setUnsignedInteger(quint32 value, const QString &key);
    void setInteger(qint32 value, const QString &key);
    void setUnsignedChar(quint8 value, const QString &key);
    void setChar(qint8 value, const QString &key);
    void setBool(bool value, const QString &key);

    /// Turns a quotation style number, 0 to 5, stored under the key into the language code with the same marks; any
    /// other number stays. A missing key and a string read as 0, so call it only while the value is a number.
    void updateQuotationSettingForKey(const QString &key);

private:
    QString m_bundleIdentifier;
    QVariantMap m_settingsDict;
};
