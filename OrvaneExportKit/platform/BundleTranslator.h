#pragma once

#include <OrvaneExportKit/platform/Bundle.h>

#include <QtCore/QLocale>
#include <QtCore/QMutex>
#include <QtCore/QTranslator>

namespace platform {

/// The texts of one bundle in the user's language, among the application's translators for as long as it lives.
///
/// The file is read when the first text is wanted: when a plug-in registers its bundle, the library is still being
/// initialised, and its resources may not be there yet. Until then it is empty for the application too, which thus
/// tells nobody of another language.
class BundleTranslator final : public QTranslator
{
public:
    explicit BundleTranslator(const Bundle &bundle);
    BundleTranslator(const BundleTranslator &) = delete;
    BundleTranslator &operator=(const BundleTranslator &) = delete;
    ~BundleTranslator() override;

    QString translate(const char *context, const char *sourceText, const char *disambiguation, int n) const override;

private:
    const Bundle m_bundle;
    mutable QMutex m_mutex; ///< texts are wanted on every thread
    mutable QTranslator m_texts;
    mutable int m_language = 0; ///< the language that the texts are in, as `setLanguage` counts them
};

} // namespace platform
