#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QLocale>

namespace platform {

/// Switches the kit's own texts to the language of `locale`: the first of its `uiLanguages()` that the kit is
/// translated into, in the form for the country where there is one, else American English.
///
/// Every application object starts with the language of `QLocale()`; a host calls this when the user picks another one
/// while it runs. The application then gets a `QEvent::LanguageChange`. The kit's translator keeps its place among the
/// installed ones: a translator that a host installs after it goes first, and so can replace any of the texts.
///
/// The texts of registered bundles (see `BundleRegistration`) follow in the same way, each bundle by what it has been
/// translated into; a bundle without a file for the language has the texts that its forms and code hold.
///
///     platform::setLanguage(QLocale(u"de_AT"_s));   // the German texts
///
/// For use on the application's main thread.
ORVANE_CORE_EXPORT void setLanguage(const QLocale &locale);

} // namespace platform
