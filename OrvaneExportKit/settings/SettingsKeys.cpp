#include <OrvaneExportKit/settings/SettingsKeys.h>

const QString kDefaultPathKey = QStringLiteral("defaultPath");
const QString kParagraphStylesKeyPath = QStringLiteral("settings.paragraphStyles");
const QString kInlineStylesKeyPath = QStringLiteral("settings.inlineStyles");
const QString kMarkerStylesKeyPath = QStringLiteral("settings.markerStyles");
const QString kNormPageHeigthKeyPath = QStringLiteral("settings.counting.pageHeight");
const QString kNormPageWidthKeyPath = QStringLiteral("settings.counting.pageWidth");
const QString kStylesIdentifierKey = QStringLiteral("identifier");
const QString kStylesDescriptionKey = QStringLiteral("description");
const QString kStylesAttributeNameKey = QStringLiteral("attributeName");
const QString kStylesAttributeValueKey = QStringLiteral("identifier");
const QString kParagraphTagKey = QStringLiteral("tag");
const QString kParagraphRelaxedKey = QStringLiteral("relaxed");
const QString kInlineStartTagKey = QStringLiteral("startTag");
const QString kInlineEndTagKey = QStringLiteral("endTag");
const QString KZAbortExportNotification = QStringLiteral("KZAbortExportNotification");
