#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/run/ExportDocument.h>

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// \file
/// For use on any thread, with documents that no other thread uses meanwhile.

namespace KZStringExportAdditions {

/// The full output path of every document, in their order; from where the user wants the files, a name pattern, and
/// the documents. Creates nothing and checks no names (`platform::impossiblePaths` and its neighbours do).
///
/// The components, joined, are the pattern. In it, these tokens are replaced, one after the other in this order, so
/// that text put in by one is searched for those behind it:
///
/// | token | replaced by                                                                             |
/// |-------|-----------------------------------------------------------------------------------------|
/// | `<1>` | the running number of the document (or of the first equal one), at least three digits   |
/// | `<2>` | its name                                                                                |
/// | `<3>` | its status                                                                              |
/// | `<4>` | its label                                                                               |
/// | `<5>` | the last component of the destination without extension; empty for an existing folder   |
///
/// Then every "/" becomes ":", the extension is appended, and with `convertSpaces` every U+0020 becomes "_".
///
/// `destination` is an existing folder or a file path. For a folder, the files go into it and their extension is the
/// open panel's required file type or, when that is empty, `pathExtension`. For a file path, they go into its folder
/// and take its extension, even when it has none; `pathExtension` is not looked at.
///
/// Equal names give equal paths; only `<1>` tells documents apart for certain. Linear in the number of documents,
/// unless their class overrides `ExportDocument::isEqual` without `hash`. Throws `platform::InvalidArgumentException`
/// for a null document.
///
///     filenamesFromComponents(u"/home/u/Novel.html"_s, {u"<5>"_s, u" "_s, u"<1>"_s}, documents, false, u"txt"_s);
///     // "/home/u/Novel 001.html", "/home/u/Novel 002.html"
ORVANE_CORE_EXPORT QStringList filenamesFromComponents(const QString &destination, const QStringList &components,
                                                       const QList<const ExportDocument *> &documents,
                                                       bool convertSpaces, const QString &pathExtension);

} // namespace KZStringExportAdditions

namespace platform {

/// Pattern components of any kind as text: strings as they are, numbers in decimal, booleans as 1 and 0, dates in
/// ISO 8601, bytes as UTF-8, lists and maps as compact JSON, nothing as the empty string, and any other value by the
/// name of its type in angle brackets.
///
/// Throws `platform::InvalidArgumentException` for a list or a map that holds more than 1048576 bytes (eight a value,
/// and its texts; one that stands at several places counts at each), or is nested more than 512 deep.
///
///     componentTexts({u"<2>"_s, 7, true});   // "<2>", "7", "1"
ORVANE_CORE_EXPORT QStringList componentTexts(const QVariantList &components);

} // namespace platform
