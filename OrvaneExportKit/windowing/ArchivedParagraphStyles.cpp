#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/ParagraphStyle.h>

#include <QtGui/QGuiApplication>

#include <string>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

struct RealField {
    QLatin1StringView key;
    double ParagraphStyle::*value;
};

/// The lengths and factors, which archives leave out when they are 0.
constexpr RealField realFields[] = {
    {QLatin1StringView("NSLineSpacing"), &ParagraphStyle::lineSpacing},
    {QLatin1StringView("NSParagraphSpacing"), &ParagraphStyle::paragraphSpacing},
    {QLatin1StringView("NSParagraphSpacingBefore"), &ParagraphStyle::paragraphSpacingBefore},
    {QLatin1StringView("NSHeadIndent"), &ParagraphStyle::headIndent},
    {QLatin1StringView("NSFirstLineHeadIndent"), &ParagraphStyle::firstLineHeadIndent},
    {QLatin1StringView("NSTailIndent"), &ParagraphStyle::tailIndent},
    {QLatin1StringView("NSMinLineHeight"), &ParagraphStyle::minimumLineHeight},
    {QLatin1StringView("NSMaxLineHeight"), &ParagraphStyle::maximumLineHeight},
    {QLatin1StringView("NSLineHeightMultiple"), &ParagraphStyle::lineHeightMultiple},
    {QLatin1StringView("NSDefaultTabInterval"), &ParagraphStyle::defaultTabInterval},
    {QLatin1StringView("NSHyphenationFactor"), &ParagraphStyle::hyphenationFactor},
    {QLatin1StringView("NSHeaderLevel"), &ParagraphStyle::headerLevel},
};

/// The alignment in a field, natural when it is missing.
TextAlignment decodeAlignment(platform::Coder &coder, const char *className, const QString &key)
{
    if (!coder.containsValueForKey(key)) {
        return TextAlignment::Natural;
    }
    const qint64 alignment = coder.decodeInt64ForKey(key);
    if (alignment < qint64(TextAlignment::Left) || alignment > qint64(TextAlignment::Natural)) {
        throw platform::ArchiveException(std::string(className) + ": `" + key.toStdString() + "` is " +
                                         std::to_string(alignment) + ", which is no alignment");
    }
    return TextAlignment(alignment);
}

/// The list in a field, empty when it is missing.
QVariantList decodeList(platform::Coder &coder, const QString &key)
{
    const QVariant list = coder.decodeObjectForKey(key);
    if (list.isValid() && list.metaType() != QMetaType::fromType<QVariantList>()) {
        throw platform::ArchiveException("NSParagraphStyle: `" + key.toStdString() + "` is no array");
    }
    return list.toList();
}

QList<TextTab> tabStops(const QVariantList &objects)
{
    QList<TextTab> stops;
    for (const QVariant &object : objects) {
        if (object.metaType() != QMetaType::fromType<TextTab>()) {
            throw platform::ArchiveException("NSParagraphStyle: `NSTabStops` holds something that is no tab");
        }
        stops.append(object.value<TextTab>());
    }
    return stops;
}

QVariant decodeParagraphStyle(platform::Coder &coder)
{
    ParagraphStyle style;
    style.alignment = decodeAlignment(coder, "NSParagraphStyle", u"NSAlignment"_s);
    for (const RealField &field : realFields) {
        style.*field.value = coder.decodeDoubleForKey(field.key);
    }
    if (coder.decodeObjectForKey(u"NSTabStops"_s).isValid()) {
        style.tabStops = tabStops(decodeList(coder, u"NSTabStops"_s));
    }
    style.lineBreakMode = coder.decodeInt64ForKey(u"NSLineBreakMode"_s);
    style.lineBreakStrategy = coder.decodeInt64ForKey(u"NSLineBreakStrategy"_s);
    style.allowsTighteningForTruncation = coder.decodeInt64ForKey(u"NSAllowsTighteningForTruncation"_s) != 0;
    const qint64 direction = coder.decodeInt64ForKey(u"NSWritingDirection"_s) - 1;
    if (direction < qint64(WritingDirection::Natural) || direction > qint64(WritingDirection::RightToLeft)) {
        throw platform::ArchiveException("NSParagraphStyle: `NSWritingDirection` is " + std::to_string(direction + 1) +
                                         ", which is no direction");
    }
    style.writingDirection = WritingDirection(direction);
    style.textBlocks = decodeList(coder, u"NSTextBlocks"_s);
    style.textLists = decodeList(coder, u"NSTextLists"_s);
    return QVariant::fromValue(style);
}

void encodeNumberUnlessZero(platform::Coder &coder, qint64 number, const QString &key)
{
    if (number != 0) {
        coder.encodeInt64(number, key);
    }
}

void encodeUnlessEmpty(platform::Coder &coder, const QVariantList &list, const QString &key)
{
    if (!list.isEmpty()) {
        coder.encodeObject(list, key);
    }
}

void encodeParagraphStyle(const QVariant &object, platform::Coder &coder)
{
    const auto style = object.value<ParagraphStyle>();
    QVariant tabs;
    if (style.tabStops) {
        QVariantList stops;
        for (const TextTab &stop : *style.tabStops) {
            stops.append(QVariant::fromValue(stop));
        }
        tabs = stops;
    }
    coder.encodeObject(tabs, u"NSTabStops"_s);
    if (style.alignment != TextAlignment::Natural) {
        coder.encodeInt64(qint64(style.alignment), u"NSAlignment"_s);
    }
    for (const RealField &field : realFields) {
        if (style.*field.value != 0.0) {
            coder.encodeDouble(style.*field.value, field.key);
        }
    }
    encodeNumberUnlessZero(coder, style.lineBreakMode, u"NSLineBreakMode"_s);
    encodeNumberUnlessZero(coder, style.lineBreakStrategy, u"NSLineBreakStrategy"_s);
    encodeNumberUnlessZero(coder, style.allowsTighteningForTruncation ? 1 : 0, u"NSAllowsTighteningForTruncation"_s);
    encodeNumberUnlessZero(coder, qint64(style.writingDirection) + 1, u"NSWritingDirection"_s);
    encodeUnlessEmpty(coder, style.textBlocks, u"NSTextBlocks"_s);
    encodeUnlessEmpty(coder, style.textLists, u"NSTextLists"_s);
}

QVariant decodeTextTab(platform::Coder &coder)
{
    return QVariant::fromValue(
        TextTab{coder.decodeDoubleForKey(u"NSLocation"_s), decodeAlignment(coder, "NSTextTab", u"NSTextAlignment"_s)});
}

void encodeTextTab(const QVariant &object, platform::Coder &coder)
{
    const auto tab = object.value<TextTab>();
    coder.encodeDouble(tab.location, u"NSLocation"_s);
    if (tab.alignment != TextAlignment::Natural) {
        coder.encodeInt64(qint64(tab.alignment), u"NSTextAlignment"_s);
    }
}

void registerParagraphStyles()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    static const platform::ArchivedClassRegistration tab(
        {{u"NSTextTab"_s, u"NSObject"_s}, QMetaType::fromType<TextTab>(), encodeTextTab, decodeTextTab});
    static const platform::ArchivedClassRegistration mutableStyle(
        {{u"NSMutableParagraphStyle"_s, u"NSParagraphStyle"_s, u"NSObject"_s},
         QMetaType::fromType<ParagraphStyle>(),
         {},
         decodeParagraphStyle});
    static const platform::ArchivedClassRegistration style({{u"NSParagraphStyle"_s, u"NSObject"_s},
                                                            QMetaType::fromType<ParagraphStyle>(),
                                                            encodeParagraphStyle,
                                                            decodeParagraphStyle});
}
Q_COREAPP_STARTUP_FUNCTION(registerParagraphStyles)

} // namespace

} // namespace windowing
