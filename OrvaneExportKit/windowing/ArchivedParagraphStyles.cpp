#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/windowing/ParagraphStyle.h>

#include <QtGui/QGuiApplication>

#include <optional>

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

/// The alignment in a field, natural when it is missing; nothing for a number that is none.
std::optional<TextAlignment> decodeAlignment(platform::Coder &coder, const QString &key)
{
    if (!coder.containsValueForKey(key)) {
        return TextAlignment::Natural;
    }
    const qint64 alignment = coder.decodeInt64ForKey(key);
    if (alignment < qint64(TextAlignment::Left) || alignment > qint64(TextAlignment::Natural)) {
        return std::nullopt;
    }
    return TextAlignment(alignment);
}

/// Where lines begin; nothing for a number that says nothing.
std::optional<WritingDirection> decodeDirection(platform::Coder &coder)
{
    const qint64 direction = coder.decodeInt64ForKey(u"NSWritingDirection"_s) - 1;
    if (direction < qint64(WritingDirection::Natural) || direction > qint64(WritingDirection::RightToLeft)) {
        return std::nullopt;
    }
    return WritingDirection(direction);
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

bool isTab(const QVariant &object)
{
    return object.metaType() == QMetaType::fromType<TextTab>();
}

/// A tab that is kept as an object because no `TextTab` can hold it.
bool isOddTab(const QVariant &object)
{
    return object.value<platform::KeyedObject>().className() == u"NSTextTab";
}

/// The stops; nothing when one of them is odd.
std::optional<QList<TextTab>> tabStops(const QVariantList &objects)
{
    QList<TextTab> stops;
    for (const QVariant &object : objects) {
        if (isOddTab(object)) {
            return std::nullopt;
        }
        if (!isTab(object)) {
            throw platform::ArchiveException("NSParagraphStyle: `NSTabStops` holds something that is no tab");
        }
        stops.append(object.value<TextTab>());
    }
    return stops;
}

QVariant decodeParagraphStyle(platform::Coder &coder)
{
    ParagraphStyle style;
    const std::optional<TextAlignment> alignment = decodeAlignment(coder, u"NSAlignment"_s);
    const std::optional<WritingDirection> direction = decodeDirection(coder);
    if (!alignment || !direction) {
        return {};
    }
    style.alignment = *alignment;
    style.writingDirection = *direction;
    for (const RealField &field : realFields) {
        style.*field.value = coder.decodeDoubleForKey(field.key);
    }
    if (coder.decodeObjectForKey(u"NSTabStops"_s).isValid()) {
        style.tabStops = tabStops(decodeList(coder, u"NSTabStops"_s));
        if (!style.tabStops) {
            return {};
        }
    }
    style.lineBreakMode = coder.decodeInt64ForKey(u"NSLineBreakMode"_s);
    style.lineBreakStrategy = coder.decodeInt64ForKey(u"NSLineBreakStrategy"_s);
    style.allowsTighteningForTruncation = coder.decodeInt64ForKey(u"NSAllowsTighteningForTruncation"_s) != 0;
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

/// What `NSType` of a tab says in older archives.
enum TabType : qint64 {
    LeftTab,
    RightTab,
    CenterTab,
    DecimalTab,
};

/// A decimal tab is a right one up to the decimal separator.
std::optional<TextAlignment> alignmentOfType(qint64 type)
{
    switch (type) {
    case LeftTab:
        return TextAlignment::Left;
    case RightTab:
    case DecimalTab:
        return TextAlignment::Right;
    case CenterTab:
        return TextAlignment::Center;
    default:
        return std::nullopt;
    }
}

QVariant decodeTextTab(platform::Coder &coder)
{
    const bool hasOnlyType = coder.containsValueForKey(u"NSType"_s) && !coder.containsValueForKey(u"NSTextAlignment"_s);
    const qint64 type = coder.decodeInt64ForKey(u"NSType"_s);
    const auto alignment = hasOnlyType ? alignmentOfType(type) : decodeAlignment(coder, u"NSTextAlignment"_s);
    const QVariant options = coder.decodeObjectForKey(u"NSTabOptions"_s);
    if (!alignment || (options.isValid() && options.metaType() != QMetaType::fromType<QVariantMap>())) {
        return {};
    }
    return QVariant::fromValue(
        TextTab{coder.decodeDoubleForKey(u"NSLocation"_s), *alignment, type == DecimalTab, options.toMap()});
}

void encodeTextTab(const QVariant &object, platform::Coder &coder)
{
    const auto tab = object.value<TextTab>();
    coder.encodeDouble(tab.location, u"NSLocation"_s);
    if (tab.alignment != TextAlignment::Natural) {
        coder.encodeInt64(qint64(tab.alignment), u"NSTextAlignment"_s);
    }
    encodeNumberUnlessZero(coder, tab.isDecimal ? DecimalTab : LeftTab, u"NSType"_s);
    if (!tab.options.isEmpty()) {
        coder.encodeObject(tab.options, u"NSTabOptions"_s);
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
