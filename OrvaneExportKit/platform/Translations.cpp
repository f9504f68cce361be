#include <OrvaneExportKit/platform/Translations.h>

#include <OrvaneExportKit/platform/BundleTranslator.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QTranslator>

#include <utility>

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

/// The translation for the first of the locale's languages that has one, "de_AT" before "de"; empty for none. What the
/// files are called begins with `start`.
QString translationPath(const QString &start, const QLocale &locale)
{
    for (const QString &language : locale.uiLanguages()) {
        const QString name = QLocale(language).name();
        for (const QString &candidate : {name, name.section(u'_', 0, 0)}) {
            QString path = start + fileCode(candidate) + u".qm"_s;
            if (QFileInfo::exists(path)) {
                return path;
            }
        }
    }
    return {};
}

/// The language that `setLanguage` set last, with a number that every call changes.
struct Language {
    QLocale locale;
    int number = 0;
};

Language &currentLanguage()
{
    static Language language;
    return language;
}

QMutex &languageMutex()
{
    static QMutex mutex;
    return mutex;
}

/// All that there are, the latest last. A function, because libraries make theirs while they are being loaded.
QList<BundleTranslator *> &bundleTranslators()
{
    static QList<BundleTranslator *> translators;
    return translators;
}

void installKitTranslator()
{
    makeTranslationsReady();
    setLanguage(QLocale());
    QCoreApplication::installTranslator(&kitTranslator());
    for (BundleTranslator *translator : std::as_const(bundleTranslators())) {
        QCoreApplication::installTranslator(translator);
    }
}
Q_COREAPP_STARTUP_FUNCTION(installKitTranslator)

} // namespace

void setLanguage(const QLocale &locale)
{
    {
        const QMutexLocker lock(&languageMutex());
        currentLanguage() = {locale, currentLanguage().number + 1};
    }
    const QString start = u":/OrvaneExportKit/translations/OrvaneExportKit_"_s;
    const QString path = translationPath(start, locale);
    [[maybe_unused]] const bool loaded = kitTranslator().load(path.isEmpty() ? start + u"en_US.qm"_s : path);
    Q_ASSERT(loaded);
}

BundleTranslator::BundleTranslator(const Bundle &bundle) : m_bundle(bundle)
{
    bundleTranslators().append(this);
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::installTranslator(this);
    }
}

BundleTranslator::~BundleTranslator()
{
    bundleTranslators().removeOne(this);
}

QString BundleTranslator::translate(const char *context, const char *sourceText, const char *disambiguation,
                                    int n) const
{
    const QMutexLocker lock(&m_mutex);
    const QMutexLocker languageLock(&languageMutex());
    if (m_language != currentLanguage().number) {
        m_language = currentLanguage().number;
        // Without a file for the language there are no texts, and those in forms and code stand.
        [[maybe_unused]] const bool hasTexts =
            m_texts.load(translationPath(m_bundle.resourceRoot() + u"/translations/"_s, currentLanguage().locale));
    }
    return m_texts.translate(context, sourceText, disambiguation, n);
}

} // namespace platform
