#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QMetaObject>
#include <QtCore/QString>

#include <memory>

/// The identifier of the bundle that the kit takes its own texts from, "org.orvane.ExportKit" at first. It is ready
/// when a plug-in's own static initialisers run. A host that has registered a bundle with other texts may write that
/// bundle's identifier into it.
extern ORVANE_CORE_EXPORT QString bndlIdentifier;

namespace platform {

class BundleTranslator;

/// A place that resources come from: an identifier in reverse-domain form, and a root, which is an absolute folder or a
/// prefix of Qt's resource system.
///
/// The kit's own bundle, "org.orvane.ExportKit" with the root ":/OrvaneExportKit", is always there. A plug-in registers
/// its bundle with a `BundleRegistration`, and its classes name it (those of settings by `ORVANE_SETTINGS_BUNDLE`):
///
///     class HtmlPanel : public QWidget
///     {
///         Q_OBJECT
///         Q_CLASSINFO("BundleIdentifier", "com.example.html")
///         ...
///     };
///
/// A bundle is a small value. The null bundle stands for one that is not there: it holds no resource and no text.
class ORVANE_CORE_EXPORT Bundle
{
public:
    /// The null bundle.
    Bundle() = default;

    /// A bundle that need not be registered.
    Bundle(const QString &identifier, const QString &resourceRoot);

    /// The bundle registered under this identifier, the latest if there are several; the null bundle if there is none.
    static Bundle bundleWithIdentifier(const QString &identifier);

    /// The bundle that a class names with `Q_CLASSINFO("BundleIdentifier", ...)`, itself or through the nearest base
    /// class that does; the null bundle while none is registered under that name. A class that names none has the
    /// kit's own.
    ///
    ///     Bundle::bundleForClass(HtmlPanel::staticMetaObject)
    static Bundle bundleForClass(const QMetaObject &metaObject);

    /// The kit's own bundle, whatever `bndlIdentifier` holds.
    static Bundle kitBundle();

    /// Whether this is the null bundle.
    bool isNull() const { return m_identifier.isEmpty(); }

    /// The identifier and the root that the bundle was made with; empty for the null bundle.
    const QString &identifier() const { return m_identifier; }
    const QString &resourceRoot() const { return m_resourceRoot; }

    /// The path of the resource "name.type" directly below the root, or below a folder that `name` starts with; empty
    /// when there is no such resource.
    ///
    ///     Bundle::kitBundle().pathForResource(u"Quotes"_s, u"plist"_s)   // ":/OrvaneExportKit/Quotes.plist"
    QString pathForResource(const QString &name, const QString &type) const;

    /// The text for a key in the user's language, from the translators that the application has installed.
    ///
    /// In a `.ts` file the table ("Localizable" where `table` is empty) is the context and the key is the source text.
    /// A message whose comment is the bundle's identifier is this bundle's alone; one without a comment serves every
    /// bundle. Without a translation (one that reads like the key is taken for none) the result is `value`, or the key
    /// where `value` is empty.
    ///
    ///     Bundle::bundleWithIdentifier(bndlIdentifier).localizedStringForKey(u"Level"_s)   // "Ebene" in German
    QString localizedStringForKey(const QString &key, const QString &value = {}, const QString &table = {}) const;

    friend bool operator==(const Bundle &, const Bundle &) = default;

private:
    QString m_identifier;
    QString m_resourceRoot;
};

/// Makes a bundle known for as long as the object lives. A static object in a plug-in registers the plug-in's bundle
/// when the library is loaded, and takes it back when it is unloaded:
///
///     const platform::BundleRegistration bundle(u"com.example.html"_s, u":/com.example.html"_s);
///
/// The bundle's translations are among the application's translators for as long: those for German are the resource
/// "translations/de.qm". They follow the language of `platform::setLanguage`, and their contexts are the plug-in's own.
///
/// A later registration of the same identifier, the kit's own included, stands before the earlier ones until it ends.
/// For use on the application's main thread.
class ORVANE_CORE_EXPORT BundleRegistration
{
public:
    /// Registers the bundle with this identifier and root.
    BundleRegistration(const QString &identifier, const QString &resourceRoot);
    BundleRegistration(const BundleRegistration &) = delete;
    BundleRegistration &operator=(const BundleRegistration &) = delete;
    ~BundleRegistration();

private:
    Bundle m_bundle;
    std::unique_ptr<BundleTranslator> m_translator;
};

} // namespace platform
