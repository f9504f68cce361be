#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>

/// \file
/// Keys and key paths that plug-ins share, so that the styles of one plug-in's settings are found by another and by
/// the panels. The kit itself reads none of them.
///
/// For use on any thread.

// Keys and key paths of the settings.
ORVANE_CORE_EXPORT extern const QString kDefaultPathKey;         ///< "defaultPath"
ORVANE_CORE_EXPORT extern const QString kParagraphStylesKeyPath; ///< "settings.paragraphStyles"
ORVANE_CORE_EXPORT extern const QString kInlineStylesKeyPath;    ///< "settings.inlineStyles"
ORVANE_CORE_EXPORT extern const QString kMarkerStylesKeyPath;    ///< "settings.markerStyles"
ORVANE_CORE_EXPORT extern const QString kNormPageHeigthKeyPath;  ///< "settings.counting.pageHeight"; spelled so
ORVANE_CORE_EXPORT extern const QString kNormPageWidthKeyPath;   ///< "settings.counting.pageWidth"

// Keys inside the dictionary of one style. The attribute value and the identifier are one and the same entry.
ORVANE_CORE_EXPORT extern const QString kStylesIdentifierKey;     ///< "identifier"
ORVANE_CORE_EXPORT extern const QString kStylesDescriptionKey;    ///< "description"
ORVANE_CORE_EXPORT extern const QString kStylesAttributeNameKey;  ///< "attributeName"
ORVANE_CORE_EXPORT extern const QString kStylesAttributeValueKey; ///< "identifier"
ORVANE_CORE_EXPORT extern const QString kParagraphTagKey;         ///< "tag"
ORVANE_CORE_EXPORT extern const QString kParagraphRelaxedKey;     ///< "relaxed"
ORVANE_CORE_EXPORT extern const QString kInlineStartTagKey;       ///< "startTag"
ORVANE_CORE_EXPORT extern const QString kInlineEndTagKey;         ///< "endTag"

/// "KZAbortExportNotification": the name of what the progress sheet posts when the user stops the export.
ORVANE_CORE_EXPORT extern const QString KZAbortExportNotification;
