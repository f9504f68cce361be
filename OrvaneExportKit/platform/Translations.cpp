#include <OrvaneExportKit/platform/Translations.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QTranslator>

using namespace Qt::Literals::StringLiterals;

/// Where the kit is loaded into a running application, the translator is wanted while the library is being initialised:
/// perhaps before its resources are. The macro works in the global namespace only.
static void makeTranslationsReady()
{
    Q_INIT_RESOURCE(OrvaneExportKitTranslations);
}

namespace platform {

namespace {

QTranslator &kitTranslator()
{
    static QTranslator translator;
    return translator;
}

/// The code by which the kit's files name a locale; British English is spelt as the settings of plug-ins spell it.
QString fileCode(const QString &localeName)
{
    if (localeName == u"en_GB") {
        return u"en_UK"_s;
    }
    return localeName == u"en" ? u"en_US"_s : localeName;
}

QString translationPath(const QString &localeName)
{
    return u":/OrvaneExportKit/translations/OrvaneExportKit_"_s + fileCode(localeName) + u".qm"_s;
}

/// The translation for the first of the locale's languages that has one: "de_AT" before "de".
QString translationPath(const QLocale &locale)
{
    for (const QString &language : locale.uiLanguages()) {
        const QString name = QLocale(language).name();
        for (const QString &candidate : {name, name.section(u'_', 0, 0)}) {
            QString path = translationPath(candidate);
            if (QFileInfo::exists(path)) {
                return path;
            }
        }
    }
    return translationPath(u"en_US"_s);
}

void installKitTranslator()
{
    makeTranslationsReady();
    setLanguage(QLocale());
    QCoreApplication::installTranslator(&kitTranslator());
}
Q_COREAPP_STARTUP_FUNCTION(installKitTranslator)

} // namespace

void setLanguage(const QLocale &locale)
{
    [[maybe_unused]] const bool loaded = kitTranslator().load(translationPath(locale));
    Q_ASSERT(loaded);
}

} // namespace platform
