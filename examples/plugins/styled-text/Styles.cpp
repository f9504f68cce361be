#include "Styles.h"

#include <OrvaneExportKit/settings/KZExportSettings.h>
#include <OrvaneExportKit/settings/SettingsKeys.h>

namespace styled {

namespace {

/// The last key of a key path of the settings: the key of the settings themselves.
QString settingsKey(const QString &keyPath)
{
    return keyPath.section(u'.', 1);
}

QString stringAt(const QVariantMap &style, const QString &key)
{
    return style.value(key).toString();
}

ParagraphStyle paragraphStyle(const QVariantMap &style)
{
    return {stringAt(style, kStylesIdentifierKey), stringAt(style, kStylesDescriptionKey),
            stringAt(style, kParagraphTagKey), style.value(kParagraphRelaxedKey).toBool(),
            stringAt(style, kStylesAttributeNameKey)};
}

InlineStyle inlineStyle(const QVariantMap &style)
{
    return {stringAt(style, kStylesIdentifierKey), stringAt(style, kStylesDescriptionKey),
            stringAt(style, kInlineStartTagKey), stringAt(style, kInlineEndTagKey),
            stringAt(style, kStylesAttributeNameKey)};
}

MarkerStyle markerStyle(const QVariantMap &style)
{
    return {stringAt(style, kStylesIdentifierKey), stringAt(style, kStylesDescriptionKey),
            stringAt(style, kParagraphTagKey)};
}

QVariantMap dictionary(const ParagraphStyle &style)
{
    return {{kStylesIdentifierKey, style.identifier},
            {kStylesDescriptionKey, style.description},
            {kParagraphTagKey, style.tag},
            {kParagraphRelaxedKey, style.relaxed},
            {kStylesAttributeNameKey, style.attributeName}};
}

QVariantMap dictionary(const InlineStyle &style)
{
    return {{kStylesIdentifierKey, style.identifier},
            {kStylesDescriptionKey, style.description},
            {kInlineStartTagKey, style.startTag},
            {kInlineEndTagKey, style.endTag},
            {kStylesAttributeNameKey, style.attributeName}};
}

QVariantMap dictionary(const MarkerStyle &style)
{
    return {{kStylesIdentifierKey, style.identifier},
            {kStylesDescriptionKey, style.description},
            {kParagraphTagKey, style.tag}};
}

template <typename Style>
QList<Style> stylesAt(const KZExportSettings &settings, const QString &keyPath, Style (*styleOf)(const QVariantMap &),
                      const QList<Style> &defaults)
{
    const QVariant stored = settings.objectForKey(settingsKey(keyPath));
    if (!stored.isValid()) {
        return defaults;
    }
    QList<Style> styles;
    for (const QVariant &style : stored.toList()) {
        styles.append(styleOf(style.toMap()));
    }
    return styles;
}

template <typename Style>
void addMissing(KZExportSettings &settings, const QString &keyPath, const QList<Style> &defaults)
{
    const QString key = settingsKey(keyPath);
    if (settings.objectForKey(key).isValid()) {
        return;
    }
    QVariantList dictionaries;
    for (const Style &style : defaults) {
        dictionaries.append(dictionary(style));
    }
    settings.setValue(dictionaries, key);
}

} // namespace

Styles stylesIn(const KZExportSettings &settings, const Styles &defaults)
{
    return {stylesAt(settings, kParagraphStylesKeyPath, paragraphStyle, defaults.paragraphs),
            stylesAt(settings, kInlineStylesKeyPath, inlineStyle, defaults.spans),
            stylesAt(settings, kMarkerStylesKeyPath, markerStyle, defaults.markers)};
}

void addMissingStyles(KZExportSettings &settings, const Styles &defaults)
{
    addMissing(settings, kParagraphStylesKeyPath, defaults.paragraphs);
    addMissing(settings, kInlineStylesKeyPath, defaults.spans);
    addMissing(settings, kMarkerStylesKeyPath, defaults.markers);
}

} // namespace styled
